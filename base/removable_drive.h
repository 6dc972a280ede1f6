// SPDX-License-Identifier: MIT
// Whether a file stands on a drive that can be taken out: a memory stick, a card, a diskette.
#pragma once

#include <filesystem>

namespace torvik {

// False where the system does not say.
bool isOnRemovableDrive(const std::filesystem::path& file);

#ifndef _WIN32
// Whether the system's folder of a disk, or of a part of it, says so.
bool isRemovableDisk(const std::filesystem::path& systemFolder);
#endif

} // namespace torvik
