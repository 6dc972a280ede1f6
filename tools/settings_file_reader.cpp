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
    const auto text = wholeText(name);
    return text && text->size() <= maxValueBytes ? *text : std::string(defaultText);
}

std::optional<std::string> SettingsFileReader::wholeText(std::string_view name) const {
    const auto value = m_text.values().find(name);
    return value != m_text.values().end() ? std::optional(value->second) : std::nullopt;
}

std::string settingsText(const std::filesystem::path& file) {
    std::error_code error;
    // Only what is known not to be there is empty: a look that fails tells nothing.
    if (std::filesystem::status(file, error).type() == std::filesystem::file_type::not_found)
        return {};
    return readWholeFile(file, maxSettingsBytes);
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
