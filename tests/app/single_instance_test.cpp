// SPDX-License-Identifier: MIT
#include "app/single_instance.h"
#include "tests/app/app_fixture.h"

#include <QSignalSpy>
#include <QSysInfo>
#include <QThread>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace torvik {
namespace {

const QString name = "torvik-test";

class SingleInstanceTest : public AppTest {
protected:
    // What a lock file says: the process, its program, its machine.
    static std::string lockOf(pid_t process, const std::string& program, const std::string& host) {
        return std::to_string(process) + "\n" + program + "\n" + host + "\n";
    }
    void leaveLock(const std::string& text) const { home.file("torvik-test.lock", text); }

    const std::string here = QSysInfo::machineHostName().toStdString();
};

TEST_F(SingleInstanceTest, OnlyOneOfTwoCopiesClaimsUntilItEnds) {
    for (int again = 0; again < 2; ++again) {
        SingleInstance first(name);
        EXPECT_TRUE(first.claim());
        EXPECT_FALSE(SingleInstance(name).claim());
        EXPECT_TRUE(SingleInstance("torvik-other").claim());
    }
    leaveLock(lockOf(getpid(), "app_test", here)); // of a process that runs
    EXPECT_FALSE(SingleInstance(name).claim());
    qputenv("TMPDIR", (home.path() / "none").c_str()); // no folder for locks
    EXPECT_TRUE(SingleInstance(name).claim());
}

TEST_F(SingleInstanceTest, TheSecondCopyReachesTheFirst) {
    SingleInstance first(name);
    ASSERT_TRUE(first.claim());
    QSignalSpy asked(&first, &SingleInstance::otherStarted);
    const QString drawing = QString::fromUtf8("C:/M\xC3\xBChle\n%41.plt");
    bool answered = false;
    const std::unique_ptr<QThread> other(
        QThread::create([&] { answered = SingleInstance(name).activateOther(drawing); }));
    other->start();
    while (!other->wait(1))
        QCoreApplication::processEvents();
    EXPECT_TRUE(answered);
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked.front().front().toString(), drawing);
}

TEST_F(SingleInstanceTest, ALeftOverLockDoesNotKeepTheProgramFromStarting) {
    const pid_t dead = fork();
    if (dead == 0)
        _exit(0);
    waitpid(dead, nullptr, 0);
    const std::pair<const char*, std::string> locks[] = {
        {"of a process that has ended", lockOf(dead, "app_test", here)},
        {"of a process whose number another program has now", lockOf(getpid(), "torvik", here)},
        {"torn before anything was written", ""},
        {"torn within the number", "12"},
        {"not a lock at all", std::string("\0\xff\n\n\n", 5)},
        {"of another machine", lockOf(1, "app_test", "another-machine")},
    };
    for (const auto& [what, text] : locks) {
        leaveLock(text);
        SingleInstance copy(name);
        EXPECT_TRUE(copy.claim()) << what;
        EXPECT_FALSE(SingleInstance(name).claim()) << what;
    }
}

TEST_F(SingleInstanceTest, ACopyThatAnswersCountsEvenWhenItsLockIsSpoilt) {
    SingleInstance first(name);
    ASSERT_TRUE(first.claim());
    for (const std::string& lock :
         {std::string(), lockOf(getpid(), "app_test", "the-name-before")}) {
        leaveLock(lock);
        EXPECT_FALSE(SingleInstance(name).claim()) << lock;
    }
}

TEST_F(SingleInstanceTest, UsersHaveNamesOfTheirOwn) {
    const QString mine = instanceName();
    qputenv("HOME", "/home/somebody else");
    EXPECT_NE(instanceName(), mine);
}

} // namespace
} // namespace torvik
