// SPDX-License-Identifier: MIT
// Files by UTF-8 names, and reading a whole file.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace torvik {

std::filesystem::path pathFromUtf8(std::string_view name);
std::string utf8FromPath(const std::filesystem::path& path);

// Raises UnreadableFile where the file does not exist, is a folder, is larger than `limit` bytes,
// or cannot be opened for reading. A pipe is not opened.
void requireReadable(const std::filesystem::path& path, std::uintmax_t limit);

// The bytes of a file of at most `limit` bytes. Raises UnreadableFile where it cannot be opened,
// is a folder, is larger, cannot be read to its end, or takes more memory than there is.
std::string readWholeFile(const std::filesystem::path& path, std::uintmax_t limit);

// Makes the folder, and those that it stands in, where it is missing. Raises FileError.
void makeFolder(const std::filesystem::path& folder);

// The words of the last failed call of the system ("No space left on device").
std::string systemErrorText();

} // namespace torvik
