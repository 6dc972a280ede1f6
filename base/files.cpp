// SPDX-License-Identifier: MIT
#include "base/files.h"

#include "base/errors.h"

#include <cerrno>
#include <fstream>
#include <system_error>

namespace torvik {
namespace {

std::ifstream openForReading(const std::filesystem::path& path) {
    const std::string name = utf8FromPath(path);
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (status.type() == std::filesystem::file_type::not_found)
        throw UnreadableFile(name, "the file does not exist");
    if (error)
        throw UnreadableFile(name, "the file cannot be read: " + error.message());
    if (std::filesystem::is_directory(status))
        throw UnreadableFile(name, "this is a folder, not a file");

    errno = 0;
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw UnreadableFile(name, "the file cannot be opened: " + systemErrorText());
    return file;
}

[[noreturn]] void raiseTooLarge(const std::filesystem::path& path, std::uintmax_t limit) {
    throw UnreadableFile(utf8FromPath(path), "the file is larger than " +
                                                 std::to_string(limit / (1024 * 1024)) + " MB");
}

std::string readBytes(const std::filesystem::path& path, std::uintmax_t limit) {
    std::ifstream file = openForReading(path);
    std::error_code error;
    std::string bytes;
    const auto expected = std::filesystem::file_size(path, error);
    if (!error && expected > limit)
        raiseTooLarge(path, limit);
    if (!error)
        bytes.reserve(static_cast<std::size_t>(expected) + 1);
    // The size is only a hint: the file may be a pipe, or grow while it is read.
    constexpr std::size_t step = std::size_t{1} << 18;
    while (file) {
        const auto used = bytes.size();
        bytes.resize(used < bytes.capacity() ? bytes.capacity() : used + step);
        file.read(bytes.data() + used, static_cast<std::streamsize>(bytes.size() - used));
        bytes.resize(used + static_cast<std::size_t>(file.gcount()));
        if (bytes.size() > limit)
            raiseTooLarge(path, limit);
    }
    if (file.bad())
        throw UnreadableFile(utf8FromPath(path),
                             "the file cannot be read to its end: " + systemErrorText());
    return bytes;
}

} // namespace

std::filesystem::path pathFromUtf8(std::string_view name) {
    return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

std::string utf8FromPath(const std::filesystem::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

void requireReadable(const std::filesystem::path& path, std::uintmax_t limit) {
    std::error_code unknown;
    if (std::filesystem::is_regular_file(path, unknown) &&
        std::filesystem::file_size(path, unknown) > limit && !unknown)
        raiseTooLarge(path, limit);
    const auto type = std::filesystem::status(path, unknown).type();
    // A pipe gives its bytes to the first who opens it.
    if (type != std::filesystem::file_type::fifo && type != std::filesystem::file_type::character)
        openForReading(path);
}

std::string readWholeFile(const std::filesystem::path& path, std::uintmax_t limit) {
    std::string bytes;
    namingFile(utf8FromPath(path), [&] { bytes = readBytes(path, limit); });
    return bytes;
}

void makeFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error)
        throw FileError(utf8FromPath(folder), "the folder cannot be created: " + error.message());
}

std::string systemErrorText() {
    return errno == 0 ? std::string("the system refused it")
                      : std::generic_category().message(errno);
}

} // namespace torvik
