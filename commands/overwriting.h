// SPDX-License-Identifier: MIT
// What a console program may write over.
#pragma once

#include <filesystem>

namespace torvik {

// Raises FileError where a file of the name exists, unless it may be overwritten, and where there
// is something else that no file can take the place of.
void requireFree(const std::filesystem::path& output, bool overwrite);

} // namespace torvik
