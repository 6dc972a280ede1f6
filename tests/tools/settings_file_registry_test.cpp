// SPDX-License-Identifier: MIT
#include "base/errors.h"
#include "base/files.h"
#include "tests/base/temporary_folder.h"
#include "tools/settings/open_registry.h"
#include "tools/settings/settings_file_registry.h"
#include "tools/tool_edits.h"
#include "tools/tool_store.h"

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
    Registry::Batch together(registry);
    registry.RegistryValuePut("A", "one");
    registry.RegistryValuePut("C", " \n");
    EXPECT_EQ(contentOf(file), "; mine\n[Maskor]\nA=1\n[Other]\nB=2\n");
    EXPECT_TRUE(together.save());
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

TEST(SettingsFile, LosesNoValueAndNoToolOfTwoProgramsThatWriteAtOnce) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "Maskor.ini";
    const auto writer = [&](std::int16_t first) {
        return startProgram([&file, first] {
            SettingsFileRegistry registry(file);
            Logger logger;
            ToolList tools;
            for (std::int16_t i = 0; i < 9; ++i) {
                registry.RegistryValuePut("Last" + std::to_string(first), std::to_string(i));
                addTool(tools, {static_cast<std::int16_t>(first + i), "Drill", 5});
                ToolDataSave(tools, registry, logger);
            }
        });
    };
    const pid_t one = writer(1);
    const pid_t ten = writer(10);
    EXPECT_TRUE(endsWell(one));
    EXPECT_TRUE(endsWell(ten));
    const SettingsFileRegistry registry(file);
    EXPECT_EQ(registry.strRegistryValueGet("Last1", "") +
                  registry.strRegistryValueGet("Last10", ""),
              "88");
    ToolList tools;
    Logger logger;
    ToolDataLoad(tools, registry, logger);
    EXPECT_EQ(tools.gintToolCount, 18);
    for (std::int16_t number = 1; number <= 18; ++number)
        EXPECT_NE(intToolGetId(tools, number), 0) << number;
}

TEST(SettingsFile, ForgetsASaveThatFailedButForThisProgram) {
    const std::string filler = ";" + std::string(4000, 'x') + "\n";
    const std::string newer = "[Maskor]\nA=newer\n" + filler;
    std::signal(SIGXFSZ, SIG_IGN);
    // Too little room for the lock, and for the lock but not for the file.
    for (const rlim_t room : {rlim_t{10}, rlim_t{1000}}) {
        const TemporaryFolder folder;
        const auto file = folder.file("Maskor.ini", "[Maskor]\nA=1\n" + filler);
        SettingsFileRegistry registry(file);
        const rlimit limit{room, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &limit);
        EXPECT_FALSE(registry.RegistryValuePut("A", "2"));
        const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &none);
        EXPECT_EQ(contentOf(file), "[Maskor]\nA=1\n" + filler);
        EXPECT_FALSE(std::filesystem::exists(folder.path() / "Maskor.ini.lock"));
        folder.file("Maskor.ini", newer);
        EXPECT_EQ(registry.strRegistryValueGet("A", ""), "2");
        EXPECT_EQ(registry.wholeText("B"), std::nullopt);
        EXPECT_EQ(contentOf(file), newer);
        EXPECT_TRUE(registry.RegistryValuePut("B", "3"));
        EXPECT_EQ(contentOf(file), newer + "B=3\n");
    }
}

TEST(SettingsFile, TakesAFileThatNobodyCanLookAtForNoEmptyOne) {
    const TemporaryFolder folder;
    const auto file = folder.path() / "Maskor.ini";
    std::filesystem::create_symlink(file, file); // leads round in a circle
    SettingsFileRegistry registry(file);
    EXPECT_EQ(registry.strRegistryValueGet("A", "default"), "default");
    EXPECT_THROW(registry.wholeText("A"), FileError);
    EXPECT_FALSE(Registry::Batch(registry).isOpen());
    EXPECT_FALSE(registry.RegistryValuePut("A", "2"));
    EXPECT_TRUE(std::filesystem::is_symlink(file));
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

TEST(SettingsFile, GivesUpAWriteWhoseLockARunningProgramKeeps) {
    const TemporaryFolder folder;
    const auto file = folder.file("Maskor.ini", "[Maskor]\nA=1\n");
    SettingsFileRegistry registry(file);
    {
        QLockFile lock(QString::fromStdString(file.string() + ".lock"));
        ASSERT_TRUE(lock.tryLock(0));
        const auto start = Clock::now();
        registry.RegistryValuePut("A", "2");
        EXPECT_LT(Clock::now() - start, 3s);
    }
    registry.RegistryValuePut("B", "3");
    EXPECT_EQ(contentOf(file), "[Maskor]\nA=1\nB=3\n");
}

} // namespace
} // namespace torvik
