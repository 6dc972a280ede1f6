// SPDX-License-Identifier: MIT
#include "base/user_folders.h"

#include "base/files.h"

#include <array>
#include <cstdlib>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/stat.h>
#include <unistd.h>
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

constexpr mode_t ownAlone = 0700;

// Whether it is a folder of the user's own (no link to one) that nobody else can enter.
bool isOwnAlone(const fs::path& folder) {
    struct stat found {};
    return ::lstat(folder.c_str(), &found) == 0 && S_ISDIR(found.st_mode) &&
           found.st_uid == ::geteuid() && (found.st_mode & 0777 & ~ownAlone) == 0;
}

std::string machineName() {
    std::array<char, 256> name{};
    return ::gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
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

// It lies in the user's profile, which has an access list of its own.
fs::path userRuntimeFolder() {
    const fs::path local = pathFromUtf8(environmentText("LOCALAPPDATA"));
    if (!local.is_absolute())
        return {};
    const fs::path folder = local / "Torvik";
    std::error_code error;
    fs::create_directories(folder, error);
    return fs::is_directory(folder, error) ? folder : fs::path();
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

fs::path userRuntimeFolder() {
    fs::path named = pathFromUtf8(environmentText("XDG_RUNTIME_DIR"));
    if (named.is_absolute() && isOwnAlone(named))
        return named;
    const fs::path cache = folderOf("XDG_CACHE_HOME", ".cache");
    if (!cache.is_absolute())
        return {};
    // Several machines may share the home folder.
    const fs::path folder = cache / ("torvik-" + machineName());
    std::error_code error;
    fs::create_directories(cache, error);
    ::mkdir(folder.c_str(), ownAlone);
    return isOwnAlone(folder) ? folder : fs::path();
}

#endif

} // namespace torvik
