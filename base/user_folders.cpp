// SPDX-License-Identifier: MIT
#include "base/user_folders.h"

#include "base/files.h"

#include <array>
#include <cstdlib>

#ifdef _WIN32
#include <windows.h>
#endif

namespace torvik {
namespace {

namespace fs = std::filesystem;

#ifndef _WIN32
// What the variable names, or else the place below the home folder that stands for it.
fs::path folderOf(const char* variable, const char* belowHome) {
    const fs::path named = pathFromUtf8(environmentText(variable));
    return named.is_absolute() ? named : pathFromUtf8(environmentText("HOME")) / belowHome;
}
#endif

} // namespace

std::string environmentText(const char* name) {
    const char* const text = std::getenv(name);
    return text == nullptr ? std::string() : std::string(text);
}

#ifdef _WIN32

fs::path executableFolder() {
    std::array<wchar_t, 32768> name{};
    const DWORD size = GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size()));
    return size == 0 ? fs::current_path() : fs::path(name.data()).parent_path();
}

// In a school's network this one follows the pupil to the next machine.
fs::path userConfigFolder() {
    return pathFromUtf8(environmentText("APPDATA"));
}

fs::path userDataFolder() {
    return userConfigFolder();
}

#else

fs::path executableFolder() {
    std::error_code error;
    const fs::path file = fs::read_symlink("/proc/self/exe", error);
    return error ? fs::current_path() : file.parent_path();
}

fs::path userConfigFolder() {
    return folderOf("XDG_CONFIG_HOME", ".config");
}

fs::path userDataFolder() {
    return folderOf("XDG_DATA_HOME", ".local/share");
}

#endif

} // namespace torvik
