// SPDX-License-Identifier: MIT
#include "tools/settings_file_reader.h"

#include "base/errors.h"
#include "base/files.h"
#include "base/user_folders.h"
#ifdef _WIN32
#include "tools/windows_registry.h"
#endif

namespace torvik {
namespace {

std::string textOf(const std::filesystem::path& file, SettingsFileReader::IfUnreadable otherwise) {
    try {
        return readWholeFile(file, maxSettingsBytes);
    } catch (const FileError&) {
        if (otherwise == SettingsFileReader::IfUnreadable::raises)
            throw;
        return {};
    }
}

} // namespace

SettingsFileReader::SettingsFileReader(const std::filesystem::path& file, IfUnreadable otherwise)
    : m_text(textOf(file, otherwise), settingsSection) {}

std::string SettingsFileReader::strRegistryValueGet(std::string_view name,
                                                    std::string_view defaultText) const {
    const auto value = m_text.values().find(name);
    return value != m_text.values().end() && value->second.size() <= maxValueBytes
               ? value->second
               : std::string(defaultText);
}

std::filesystem::path userSettingsFile() {
    return userConfigFolder() / "Baltrum" / "Maskor.ini";
}

std::unique_ptr<RegistryReader> openRegistryReader() {
#ifdef _WIN32
    return std::make_unique<WindowsRegistry>();
#else
    return std::make_unique<SettingsFileReader>(userSettingsFile());
#endif
}

std::string registryPlace() {
#ifdef _WIN32
    return "HKEY_LOCAL_MACHINE\\SOFTWARE\\Baltrum\\Maskor";
#else
    return utf8FromPath(userSettingsFile());
#endif
}

} // namespace torvik
