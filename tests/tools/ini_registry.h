// SPDX-License-Identifier: MIT
// A registry over a settings file's text in memory.
#pragma once

#include "tools/ini_text.h"
#include "tools/registry.h"

#include <string>
#include <string_view>

namespace torvik {

class IniRegistry : public Registry {
public:
    explicit IniRegistry(std::string_view text = {}) : m_ini(text, "Maskor") {}

    std::string strRegistryValueGet(std::string_view name,
                                    std::string_view defaultText) const override {
        const auto entry = m_ini.values().find(name);
        const bool isRead = entry != m_ini.values().end() && entry->second.size() <= maxValueBytes;
        return std::string(isRead ? std::string_view(entry->second) : defaultText);
    }
    void RegistryValuePut(std::string_view name, std::string_view data) override {
        m_ini.setValue(name, data);
    }
    std::string text() const { return m_ini.text(); }

private:
    IniText m_ini;
};

} // namespace torvik
