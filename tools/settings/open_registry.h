// SPDX-License-Identifier: MIT
// Opens the registry that the programs share.
#pragma once

#include "tools/registry.h"

#include <filesystem>
#include <memory>

namespace torvik {

// The Windows registry on Windows, the user's settings file elsewhere.
std::unique_ptr<Registry> openRegistry();
// A settings file that the user names, on every system.
std::unique_ptr<Registry> openRegistry(const std::filesystem::path& settingsFile);

} // namespace torvik
