// SPDX-License-Identifier: MIT
#include "tools/windows_registry.h"

#include <windows.h>

#include <algorithm>
#include <array>

namespace torvik {

std::string WindowsRegistry::strRegistryValueGet(std::string_view name,
                                                 std::string_view defaultText) const {
    std::array<char, maxValueBytes + 1> buffer;
    buffer.fill(' ');
    auto length = static_cast<DWORD>(buffer.size());

    // Opened anew for each read and left open: Windows closes it when the program ends.
    HKEY key = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, "SOFTWARE\\Baltrum\\Maskor", 0, KEY_QUERY_VALUE, &key) !=
        ERROR_SUCCESS)
        return std::string(defaultText);
    if (RegQueryValueExA(key, std::string(name).c_str(), nullptr, nullptr,
                         reinterpret_cast<BYTE*>(buffer.data()), &length) != ERROR_SUCCESS)
        return std::string(defaultText);

    std::string text(buffer.data(), std::min<std::size_t>(length, buffer.size()));
    if (text.ends_with('\0'))
        text.pop_back();
    return text;
}

// A step that fails ends the writing; nobody is told.
void WindowsRegistry::RegistryValuePut(std::string_view name, std::string_view data) {
    HKEY software = nullptr;
    if (RegOpenKeyExA(HKEY_LOCAL_MACHINE, "SOFTWARE", 0, KEY_WRITE, &software) != ERROR_SUCCESS)
        return;
    HKEY key = nullptr;
    if (RegCreateKeyExA(software, "Baltrum\\Maskor", 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_WRITE,
                        nullptr, &key, nullptr) == ERROR_SUCCESS) {
        const std::string text(data);
        RegSetValueExA(key, std::string(name).c_str(), 0, REG_SZ,
                       reinterpret_cast<const BYTE*>(text.c_str()),
                       static_cast<DWORD>(text.size() + 1));
        RegCloseKey(key);
    }
    RegCloseKey(software);
}

} // namespace torvik
