// SPDX-License-Identifier: MIT
// The shared settings in the Windows registry: text values (REG_SZ) of
// HKEY_LOCAL_MACHINE\SOFTWARE\Baltrum\Maskor. The texts are UTF-8 where the program's manifest sets
// that code page, as those of this project do.
#pragma once

#include "tools/registry.h"

namespace torvik {

class WindowsRegistry : public Registry {
public:
    // A value whose text and NUL take more than 80 bytes counts as missing.
    std::string strRegistryValueGet(std::string_view name,
                                    std::string_view defaultText) const override;
    void RegistryValuePut(std::string_view name, std::string_view data) override;
};

} // namespace torvik
