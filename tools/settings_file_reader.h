// SPDX-License-Identifier: MIT
// The shared settings as they stand in a settings file, for programs that only read them: no lock
// is taken, since the file is only ever replaced as a whole.
#pragma once

#include "tools/ini_text.h"
#include "tools/registry.h"

#include <filesystem>
#include <memory>

namespace torvik {

class SettingsFileReader : public RegistryReader {
public:
    enum class IfUnreadable { holdsNothing, raises };

    // Reads the file. One that is missing or cannot be read holds nothing, or raises FileError.
    explicit SettingsFileReader(const std::filesystem::path& file,
                                IfUnreadable otherwise = IfUnreadable::holdsNothing);

    std::string strRegistryValueGet(std::string_view name,
                                    std::string_view defaultText) const override;
    std::optional<std::string> wholeText(std::string_view name) const override;

private:
    IniText m_text;
};

// The section of a settings file that is ours, and the largest file that is read.
inline constexpr std::string_view settingsSection = "Maskor";
inline constexpr std::size_t maxSettingsBytes = std::size_t{16} << 20;

// The text of a settings file, empty where there is none. Raises FileError where it cannot be read
// or is too large.
std::string settingsText(const std::filesystem::path& file);

// Baltrum/Maskor.ini in the user's configuration folder.
std::filesystem::path userSettingsFile();

// What the programs share, for reading: the Windows registry on Windows, the user's settings file
// elsewhere.
std::unique_ptr<RegistryReader> openRegistryReader();
// Where that is, as the user finds it.
std::string registryPlace();

} // namespace torvik
