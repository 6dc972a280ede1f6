// SPDX-License-Identifier: MIT
#include "base/removable_drive.h"

#ifdef _WIN32
#include <windows.h>

#include <array>
#else
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#endif

namespace torvik {

namespace fs = std::filesystem;

#ifdef _WIN32

bool isOnRemovableDrive(const fs::path& file) {
    std::array<wchar_t, MAX_PATH + 1> drive{};
    return GetVolumePathNameW(file.c_str(), drive.data(), static_cast<DWORD>(drive.size())) != 0 &&
           GetDriveTypeW(drive.data()) == DRIVE_REMOVABLE;
}

#else

bool isRemovableDisk(const fs::path& systemFolder) {
    // A part of a disk says nothing, but stands in the folder of its disk.
    for (const fs::path& folder : {systemFolder, systemFolder.parent_path()})
        if (char answer = '0'; std::ifstream(folder / "removable") >> answer)
            return answer == '1';
    return false;
}

bool isOnRemovableDrive(const fs::path& file) {
    struct stat found {};
    if (::stat(file.c_str(), &found) != 0)
        return false;
    const std::string number =
        std::to_string(major(found.st_dev)) + ':' + std::to_string(minor(found.st_dev));
    std::error_code error;
    const fs::path disk = fs::canonical("/sys/dev/block/" + number, error);
    return !error && isRemovableDisk(disk);
}

#endif

} // namespace torvik
