// SPDX-License-Identifier: MIT
#include "base/file_calls.h"
#include "base/files.h"
#include "base/pending_name.h"
#include "base/stop_signals.h"
#include "base/whole_file.h"
#include "tests/base/temporary_folder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace torvik {
namespace {

namespace fs = std::filesystem;

class WholeFileTest : public testing::Test {
protected:
    // Names and contents in the folder.
    std::map<std::string, std::string> files() const {
        std::map<std::string, std::string> found;
        for (const auto& entry : fs::directory_iterator(folder.path()))
            if (entry.is_regular_file())
                found[entry.path().filename().string()] = readWholeFile(entry.path(), 1 << 20);
        return found;
    }
    using Files = std::map<std::string, std::string>;

    TemporaryFolder folder;
    const fs::path target = folder.file("a.txt", "old");
};

TEST_F(WholeFileTest, IsThereWholeOrNotAtAll) {
    {
        WholeFile file(target);
        file.write("half");
    }
    EXPECT_EQ(files(), (Files{{"a.txt", "old"}}));
    fs::permissions(target, fs::perms::owner_read | fs::perms::owner_write);
    saveWhole(target, "new");
    EXPECT_EQ(files(), (Files{{"a.txt", "new"}}));
    EXPECT_EQ(fs::status(target).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(WholeFileTest, TwoAreThereBothOrNone) {
    for (const char* first : {"a.txt", "c.txt"}) { // one that is replaced, and a new one
        WholeFile one(folder.path() / first);
        one.write("new");
        WholeFile other(folder.path() / "b.txt");
        fs::create_directory(folder.path() / "b.txt"); // too late to be seen
        EXPECT_THROW(commitBoth(one, other), FileError);
        fs::remove(folder.path() / "b.txt");
    }
    EXPECT_EQ(files(), (Files{{"a.txt", "old"}}));
}

TEST_F(WholeFileTest, OnlyOldLeftOversOfItsOwnGo) {
    const std::string mine = ".torvik-0123456789abcdef.new";
    const std::string young = ".torvik-0123456789abcde0.new";
    const std::string foreign = ".torvik-0123456789abcdef.txt";
    const std::string second = ".torvik-0123456789abcdef.old"; // a new name for an old file
    for (const std::string& name : {mine, young, foreign, second})
        fs::last_write_time(folder.file(name, ""), fs::file_time_type::clock::now() -
                                                       std::chrono::hours(name == young ? 23 : 25));
    saveWhole(target, "new");
    EXPECT_EQ(files(), (Files{{"a.txt", "new"}, {young, ""}, {foreign, ""}, {second, ""}}));
}

TEST_F(WholeFileTest, AStopRemovesWhatIsPendingAfterWhatMustNotBeCut) {
    const pid_t program = fork();
    if (program == 0) {
        tidyUpWhenStopped();
        const PendingName pending(target, ".new");
        folder.file(pending.path().filename().string(), "half");
        const StopWaits untilTheEnd;
        std::raise(SIGTERM);
        folder.file("a.txt", "saved");
        return; // not as far as that
    }
    int status = 0;
    waitpid(program, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
    EXPECT_EQ(files(), (Files{{"a.txt", "saved"}}));
}

TEST_F(WholeFileTest, ALinkLeadsToTheFile) {
    fs::create_symlink("a.txt", folder.path() / "link");
    saveWhole(folder.path() / "link", "new");
    EXPECT_TRUE(fs::is_symlink(folder.path() / "link"));
    EXPECT_EQ(readWholeFile(target, 100), "new");
}

TEST_F(WholeFileTest, WhatNoFileCanReplaceIsRefused) {
    const fs::path inside = folder.path() / "folder";
    fs::create_directory(inside);
    const std::pair<fs::path, const char*> rows[] = {
        {inside, "there is a folder of this name"},
        {folder.path() / "no" / "b", "No such file or directory"},
        {"/dev/full", "this is no ordinary file"},
    };
    for (const auto& [path, cause] : rows) {
        try {
            saveWhole(path, "new");
            ADD_FAILURE() << path << " was written";
        } catch (const FileError& error) {
            const std::string said = error.what();
            EXPECT_TRUE(said.starts_with(path.string() + ": ")) << said;
            EXPECT_NE(said.find(cause), std::string::npos) << said;
        }
    }
    EXPECT_EQ(files(), (Files{{"a.txt", "old"}}));
}

TEST_F(WholeFileTest, IsWrittenUnderANameThatNobodyElseHas) {
    EXPECT_NE(PendingName(target, ".new").path(), PendingName(target, ".new").path());
    fs::create_symlink(target, folder.path() / "planted");
    for (const char* name : {"a.txt", "planted"})
        EXPECT_LT(calls::createNew(folder.path() / name), 0) << name;
}

} // namespace
} // namespace torvik
