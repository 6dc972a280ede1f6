// SPDX-License-Identifier: MIT
#include "app/single_instance.h"
#include "base/user_folders.h"
#include "tests/app/app_fixture.h"

#include <QSignalSpy>
#include <QThread>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace torvik {
namespace {

namespace fs = std::filesystem;

class SingleInstanceTest : public AppTest {
protected:
    fs::path sub(const char* name, mode_t mode) const {
        fs::path made = home.path() / name;
        fs::create_directory(made);
        ::chmod(made.c_str(), mode);
        return made;
    }

    const fs::path folder = sub("mine", 0700);
};

TEST_F(SingleInstanceTest, OnlyOneOfTwoCopiesClaimsUntilItEnds) {
    for (int again = 0; again < 2; ++again) {
        SingleInstance first(folder);
        EXPECT_TRUE(first.claim());
        EXPECT_FALSE(SingleInstance(folder).claim());
    }
    for (const fs::path& none : {home.path() / "missing", fs::path()})
        EXPECT_TRUE(SingleInstance(none).claim() && SingleInstance(none).claim()) << none;
}

TEST_F(SingleInstanceTest, TheSecondCopyReachesTheFirstWhateverACrashLeftBehind) {
    const pid_t crashed = ::fork();
    if (crashed == 0) {
        SingleInstance copy(folder);
        ::_exit(copy.claim() ? 0 : 1);
    }
    ::waitpid(crashed, nullptr, 0);
    ASSERT_TRUE(fs::exists(folder / "torvik.socket"));
    SingleInstance first(folder);
    ASSERT_TRUE(first.claim());
    EXPECT_FALSE(SingleInstance(folder).claim());
    QSignalSpy asked(&first, &SingleInstance::otherStarted);
    const QString drawing = QString::fromUtf8("C:/M\xC3\xBChle\n%41.plt");
    bool answered = false;
    const std::unique_ptr<QThread> other(
        QThread::create([&] { answered = SingleInstance(folder).activateOther(drawing); }));
    other->start();
    while (!other->wait(1))
        QCoreApplication::processEvents();
    EXPECT_TRUE(answered);
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked.front().front().toString(), drawing);
}

TEST_F(SingleInstanceTest, CopiesMeetOnlyWhereNobodyElseCanEnter) {
    fs::path foreign = "/root";
    if (::geteuid() == 0) {
        foreign = sub("foreign", 0700);
        ASSERT_EQ(::chown(foreign.c_str(), 1, 1), 0);
    }
    fs::create_directory_symlink(folder, home.path() / "link");
    const std::pair<const char*, fs::path> refused[] = {
        {"none named", {}},
        {"missing", home.path() / "missing"},
        {"another user's", foreign},
        {"open to the group", sub("shared", 0770)},
        {"no folder", home.file("file", "")},
        {"a link", home.path() / "link"},
    };
    for (const auto& [what, named] : refused) {
        qputenv("XDG_RUNTIME_DIR", named.c_str());
        const fs::path used = userRuntimeFolder();
        EXPECT_EQ(used.parent_path(), home.path()) << what; // of the caches
        EXPECT_EQ(fs::status(used).permissions(), fs::perms::owner_all) << what;
        fs::remove_all(used);
        fs::create_directory_symlink(folder, used); // planted there
        EXPECT_EQ(userRuntimeFolder(), fs::path()) << what;
        fs::remove(used);
    }
    qputenv("XDG_RUNTIME_DIR", folder.c_str());
    EXPECT_EQ(userRuntimeFolder(), folder);
}

} // namespace
} // namespace torvik
