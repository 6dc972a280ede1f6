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

    std::string text() const { return m_ini.text(); }

    bool canStore = true;

protected:
    std::string storedValueGet(std::string_view name, std::string_view defaultText) const override {
        const auto text = storedText(name);
        return text && text->size() <= maxValueBytes ? *text : std::string(defaultText);
    }
    std::optional<std::string> storedText(std::string_view name) const override {
        const auto entry = m_ini.values().find(name);
        return entry != m_ini.values().end() ? std::optional(entry->second) : std::nullopt;
    }
    bool store(const Values& values) override {
        for (const auto& [name, data] : values)
            if (canStore)
                m_ini.setValue(name, data);
        return canStore;
    }

private:
    IniText m_ini;
};

} // namespace torvik
