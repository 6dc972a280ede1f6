// SPDX-License-Identifier: MIT
// The shared settings in the Windows registry: text values (REG_SZ) of
// HKEY_LOCAL_MACHINE\SOFTWARE\Baltrum\Maskor. The texts are UTF-8 where the program's manifest sets
// that code page, as those of this project do.
#pragma once

#include "tools/registry.h"

namespace torvik {

class WindowsRegistry : public Registry {
public:
    WindowsRegistry() = default;
    WindowsRegistry(const WindowsRegistry&) = delete;
    WindowsRegistry& operator=(const WindowsRegistry&) = delete;
    ~WindowsRegistry() override;

protected:
    // A value whose text and NUL take more than 80 bytes counts as missing.
    std::string storedValueGet(std::string_view name, std::string_view defaultText) const override;
    std::optional<std::string> storedText(std::string_view name) const override;
    bool store(const Values& values) override;
    // Waits two seconds at most.
    bool lock() override;
    void unlock() override;

private:
    void* m_mutex = nullptr; // one for all programs of the machine
    bool m_locked = false;
};

} // namespace torvik
