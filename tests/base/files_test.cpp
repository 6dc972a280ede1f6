// SPDX-License-Identifier: MIT
#include "base/errors.h"
#include "base/files.h"
#include "tests/base/temporary_folder.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

std::string refusal(const std::filesystem::path& path, std::uintmax_t limit) {
    try {
        readWholeFile(path, limit);
    } catch (const FileError& error) {
        return error.what();
    }
    return "read";
}

TEST(ReadWholeFile, KeepsEveryByteUpToTheLimit) {
    const TemporaryFolder folder;
    const std::string bytes = std::string("a\r\n\0\xFF", 5) + std::string(600'000, 'x') + "\x1A\n";
    EXPECT_EQ(readWholeFile(folder.file("M\xC3\xBC", bytes), bytes.size()), bytes);
    EXPECT_EQ(readWholeFile(folder.file("empty", ""), 10), "");
    EXPECT_EQ(utf8FromPath(pathFromUtf8("M\xC3\xBC/a b")), "M\xC3\xBC/a b");
}

TEST(ReadWholeFile, NamesTheFileAndTheCause) {
    const TemporaryFolder folder;
    const auto large = folder.file("large", std::string((1 << 20) + 1, 'x'));
    EXPECT_EQ(refusal(large, 1 << 20), large.string() + ": the file is larger than 1 MB");
    const auto missing = folder.path() / "missing";
    EXPECT_EQ(refusal(missing, 10), missing.string() + ": the file does not exist");
    EXPECT_EQ(refusal(folder.path(), 10),
              folder.path().string() + ": this is a folder, not a file");
#ifndef _WIN32
    EXPECT_EQ(refusal("/dev/zero", 1 << 20), "/dev/zero: the file is larger than 1 MB");
    // A file that can be opened but not read, for any user.
    EXPECT_EQ(refusal("/proc/self/mem", 1 << 20),
              "/proc/self/mem: the file cannot be read to its end: Input/output error");
#endif
}

} // namespace
} // namespace torvik
