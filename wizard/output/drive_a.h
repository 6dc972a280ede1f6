// SPDX-License-Identifier: MIT
// Where drive A: leads. On Windows it is the drive itself; elsewhere, and wherever the workshop
// has set it, it is a folder. What the user reads is "a:\..." in any case.
#pragma once

#include <filesystem>

namespace torvik {

class Registry;

inline constexpr const char* driveASetting = "Drive A Path";

// The folder that stands for "a:\": the one of the setting, else drive A: on Windows, else the
// mount point of a floppy device. Empty where there is none of them.
std::filesystem::path driveA(const Registry& registry);

// Whether the folder exists and can be written.
bool isDriveReady(const std::filesystem::path& folder);

} // namespace torvik
