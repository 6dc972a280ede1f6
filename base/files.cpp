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
        throw FileError(name, "the file does not exist");
    if (error)
        throw FileError(name, "the file cannot be read: " + error.message());
    if (std::filesystem::is_directory(status))
        throw FileError(name, "this is a folder, not a file");

    errno = 0;
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw FileError(name, "the file cannot be opened: " + systemErrorText());
    return file;
}

} // namespace

std::filesystem::path pathFromUtf8(std::string_view name) {
    return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

std::string utf8FromPath(const std::filesystem::path& path) {
    const std::u8string name = path.u8string();
    return {name.begin(), name.end()};
}

void requireReadable(const std::filesystem::path& path) {
    std::error_code unknown;
    const auto type = std::filesystem::status(path, unknown).type();
    // A pipe gives its bytes to the first who opens it.
    if (type != std::filesystem::file_type::fifo && type != std::filesystem::file_type::character)
        openForReading(path);
}

std::string readWholeFile(const std::filesystem::path& path, std::uintmax_t limit) {
    const std::string name = utf8FromPath(path);
    const auto raiseTooLarge = [&] {
        throw FileError(name,
                        "the file is larger than " + std::to_string(limit / (1024 * 1024)) + " MB");
    };
    std::ifstream file = openForReading(path);
    std::error_code error;
    std::string bytes;
    const auto expected = std::filesystem::file_size(path, error);
    if (!error && expected > limit)
        raiseTooLarge();
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
            raiseTooLarge();
    }
    if (file.bad())
        throw FileError(name, "the file cannot be read to its end: " + systemErrorText());
    return bytes;
}

std::string systemErrorText() {
    return errno == 0 ? std::string("the system refused it")
                      : std::generic_category().message(errno);
}

} // namespace torvik
