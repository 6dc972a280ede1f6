// SPDX-License-Identifier: MIT
// The MD5 digest of a file, which binds the answers to a drawing's content.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace torvik {

// In lower-case hexadecimal.
std::string digestOf(std::string_view bytes);
// The same of a file. Raises FileError where it cannot be read or is too large for a drawing.
std::string strDigestFile(const std::filesystem::path& path);

} // namespace torvik
