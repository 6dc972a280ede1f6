// SPDX-License-Identifier: MIT
// The MD5 digest of a file, which binds the answers to a drawing's content.
#pragma once

#include <filesystem>
#include <string>

namespace torvik {

// In lower-case hexadecimal. Raises FileError where the file cannot be read.
std::string strDigestFile(const std::filesystem::path& path);

} // namespace torvik
