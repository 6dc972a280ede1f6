// SPDX-License-Identifier: MIT
#include "base/files.h"
#include "tests/base/temporary_folder.h"
#include "tools/settings/open_registry.h"
#include "tools/settings/settings_file_registry.h"

#include <QtCore/QLockFile>
#include <QtCore/QSysInfo>

#include <chrono>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace torvik {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

std::string contentOf(const std::filesystem::path& path) {
    return readWholeFile(path, 1 << 20);
}

// Runs the work as another program; its exit code is 0 unless the work says otherwise.
pid_t startProgram(const std::function<void()>& work) {
    const pid_t program = fork();
    if (program == 0) {
        work();
        _exit(0);
    }
    return program;
}

bool endsWell(pid_t program) {
    int status = -1;
    waitpid(program, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(SettingsFile, CountsAValueOfEightyBytesAsMissing) {
    const TemporaryFolder folder;
    SettingsFileRegistry registry(folder.path() / "Maskor.ini");
    const std::string longest = std::string(77, 'x') + "\xC3\xA4";
    registry.RegistryValuePut("Tool01", longest);
    EXPECT_EQ(registry.strRegistryValueGet("Tool01", "default"), longest);
    registry.RegistryValuePut("Tool01", longest + "x");
    EXPECT_EQ(registry.strRegistryValueGet("Tool01", "default"), "default");
}

TEST(SettingsFile, TakesDefaultsFromWhatCannotBeReadAndCreatesNothing) {
    const TemporaryFolder folder;
    for (const auto& file : {folder.path() / "none" / "Maskor.ini", folder.path(),
                             folder.file("plain", "x") / "Maskor.ini"}) {
        const SettingsFileRegistry registry(file);
        EXPECT_EQ(registry.strRegistryValueGet("ToolCount", "0"), "0") << file;
    }
    EXPECT_FALSE(std::filesystem::exists(folder.path() / "none"));
}

TEST(SettingsFile, StoresABatchAtItsEnd) {
    const TemporaryFolder folder;
    const auto file = folder.file("Maskor.ini", "; mine\n[Maskor]\nA=1\n[Other]\nB=2\n");
    SettingsFileRegistry registry(file);
    {
        const Registry::Batch outer(registry);
        { const Registry::Batch inner(registry); }
        registry.RegistryValuePut("A", "one");
        registry.RegistryValuePut("C", " \n");
        EXPECT_EQ(registry.strRegistryValueGet("A", ""), "one");
        EXPECT_EQ(contentOf(file), "; mine\n[Maskor]\nA=1\n[Other]\nB=2\n");
    }
    EXPECT_EQ(contentOf(file), "; mine\n[Maskor]\nA=one\nC=\"  \"\n[Other]\nB=2\n");
}

TEST(SettingsFile, SeesAndKeepsWhatAnotherProgramWrites) {
    const TemporaryFolder folder;
    const auto file = folder.file("Maskor.ini", "[Maskor]\nOurs=1\nTheirs=1\n");
    SettingsFileRegistry registry(file);
    registry.RegistryValuePut("Ours", "2");
    EXPECT_TRUE(endsWell(
        startProgram([&] { SettingsFileRegistry(file).RegistryValuePut("Theirs", "3"); })));
    EXPECT_EQ(registry.strRegistryValueGet("Theirs", ""), "3");
    folder.file("Maskor.ini", "[Maskor]\nOurs=2\nTheirs=by hand\n");
    registry.RegistryValuePut("Ours", "5");
    EXPECT_EQ(contentOf(file), "[Maskor]\nOurs=5\nTheirs=by hand\n");

    // Other programs notice a save by the file's size or time; here only the time can tell.
    const auto before = std::filesystem::file_time_type::clock::now() + 1h;
    std::filesystem::last_write_time(file, before);
    registry.RegistryValuePut("Ours", "6");
    EXPECT_GT(std::filesystem::last_write_time(file), before);
}

TEST(SettingsFile, LosesNoValueOfTwoProgramsThatWriteAtOnce) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "Maskor.ini";
    const auto writer = [&](const std::string& name) {
        return startProgram([&file, name] {
            SettingsFileRegistry registry(file);
            for (int i = 1; i <= 9; ++i)
                for (const char* part : {"x", "y", "z"})
                    registry.RegistryValuePut(name + part, std::to_string(i));
        });
    };
    const pid_t first = writer("A");
    const pid_t second = writer("B");
    EXPECT_TRUE(endsWell(first));
    EXPECT_TRUE(endsWell(second));
    const SettingsFileRegistry registry(file);
    for (const char* name : {"Ax", "Az", "Bx", "Bz"})
        EXPECT_EQ(registry.strRegistryValueGet(name, ""), "9") << name;
}

TEST(SettingsFile, LeavesTheOldFileWhereTheDiskIsFull) {
    const TemporaryFolder folder;
    const std::string old = "[Maskor]\nA=1\n;" + std::string(4000, 'x') + "\n";
    const auto file = folder.file("Maskor.ini", old);
    // Too little room for the lock, and for the lock but not for the file.
    for (const rlim_t room : {rlim_t{10}, rlim_t{1000}}) {
        EXPECT_TRUE(endsWell(startProgram([&] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{room, room};
            setrlimit(RLIMIT_FSIZE, &limit);
            SettingsFileRegistry(file).RegistryValuePut("A", "2");
        })));
        EXPECT_EQ(contentOf(file), old);
        EXPECT_FALSE(std::filesystem::exists(folder.path() / "Maskor.ini.lock"));
    }
}

TEST(SettingsFile, NeverWritesAFileThatItCannotReadWhole) {
    const TemporaryFolder folder;
    const auto file = folder.file("Maskor.ini", "[Maskor]\nA=1\n");
    std::filesystem::resize_file(file, 17 << 20);
    SettingsFileRegistry registry(file);
    EXPECT_EQ(registry.strRegistryValueGet("A", "default"), "default");
    registry.RegistryValuePut("A", "2");
    EXPECT_EQ(std::filesystem::file_size(file), 17u << 20);
}

TEST(SettingsFile, IsHeldNoLongerThanTwoSecondsByALockLeftBehind) {
    const pid_t dead = startProgram([] {});
    ASSERT_TRUE(endsWell(dead));
    const std::string deadOwner = std::to_string(dead) + "\nprogram\n";
    const struct {
        const char* name;
        std::string content;
        std::chrono::seconds age;
        Clock::duration longest;
    } cases[] = {
        {"of a program that died", deadOwner + QSysInfo::machineHostName().toStdString() + "\n", 0s,
         1s},
        {"of another machine, just made", deadOwner + "elsewhere\n", 0s, 2s},
        {"empty, dated in the future", "", -100s, 1s},
    };
    for (const auto& [name, content, age, longest] : cases) {
        const TemporaryFolder folder;
        const auto lock = folder.file("Maskor.ini.lock", content);
        std::filesystem::last_write_time(lock, std::filesystem::file_time_type::clock::now() - age);
        SettingsFileRegistry registry(folder.path() / "Maskor.ini");
        const auto start = Clock::now();
        registry.RegistryValuePut("A", "1");
        EXPECT_LT(Clock::now() - start, longest) << name;
        EXPECT_EQ(contentOf(folder.path() / "Maskor.ini"), "[Maskor]\nA=1\n") << name;
        EXPECT_FALSE(std::filesystem::exists(lock)) << name;
    }
}

TEST(SettingsFile, DropsAWriteWhoseLockARunningProgramKeeps) {
    const TemporaryFolder folder;
    const auto file = folder.file("Maskor.ini", "[Maskor]\nA=1\n");
    SettingsFileRegistry registry(file);
    {
        QLockFile lock(QString::fromStdString(file.string() + ".lock"));
        ASSERT_TRUE(lock.tryLock(0));
        const auto start = Clock::now();
        registry.RegistryValuePut("A", "2");
        EXPECT_LT(Clock::now() - start, 3s);
        EXPECT_EQ(registry.strRegistryValueGet("A", ""), "1");
    }
    registry.RegistryValuePut("B", "3");
    EXPECT_EQ(contentOf(file), "[Maskor]\nA=1\nB=3\n");
}

} // namespace
} // namespace torvik
