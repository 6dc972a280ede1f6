// SPDX-License-Identifier: MIT
// Every call of the system that a save makes fails once, and from then on: the files are the old
// ones or the new ones, as the save says, and nothing is left beside them.
#include "answers/import_drawing.h"
#include "answers/put_saved_data.h"
#include "convert/converter.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "job/job.h"
#include "prepare/command/preparer.h"
#include "tests/convert/conversion.h"
#include "tests/faults/fault_shim.h"
#include "tools/settings/open_registry.h"
#include "tools/settings_file_reader.h"
#include "tools/tool_store.h"

#include <dlfcn.h>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>

namespace torvik {
namespace {

namespace fs = std::filesystem;

const std::string job = TORVIK_GOLDEN "/cut_job/";

template <typename Function>
Function* inShim(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name));
}

// Whether the save said that it is done; nothing where it does not say.
using Said = std::optional<bool>;

Said convert(const std::string& folder) {
    std::ostringstream said;
    return runConverter({"torvik-convert", job + "drawing.plt", "--answers", job + "drawing.plx",
                         "--tools", job + "Maskor.ini", "--target", "winnc", "--number", "1",
                         "--output-dir", folder, "--force"},
                        said, said) == 0;
}

Said prepare(const std::string& folder) {
    std::ostringstream said;
    return runPreparer({"torvik-prepare", QString::fromStdString(job + "drawing.plt"), "--pen",
                        "9=1", "--output", QString::fromStdString(folder + "/drawing-torvik.plt")},
                       said, said) == 0;
}

Said saveTools(const std::string& folder) {
    openRegistry(folder + "/Maskor.ini")->RegistryValuePut("Tool01", "2|Drill|3.000|0.000");
    return {};
}

// The job as the window has it.
struct OpenJob {
    OpenJob() {
        ToolDataLoad(tools, SettingsFileReader(job + "Maskor.ini"), logger);
        importDrawingWithAnswers(work, job + "drawing.plt", tools, job + "drawing.plx", logger);
    }
    Logger logger;
    ToolList tools;
    Job work;
};

Said writeInWindow(const std::string& folder) {
    OpenJob open;
    return WriteFile(open.work, open.tools, targetWinNc, 1, folder + "/oprg1", open.logger) ==
           WriteOutcome::written;
}

Said saveAnswers(const std::string& folder) {
    OpenJob open;
    return PutSavedData(open.work, open.tools, folder, open.logger);
}

struct Saver {
    const char* name;
    Said (*save)(const std::string& folder);
    Files old;
};

class Faults : public testing::TestWithParam<Saver> {
protected:
    void start(const Files& files) const {
        fs::remove_all(m_folder.path() / "disk");
        fs::create_directory(m_folder.path() / "disk");
        for (const auto& [name, bytes] : files)
            std::ofstream(m_folder.path() / "disk" / name, std::ios::binary) << bytes;
    }
    Files found() const { return filesOf(m_folder.path() / "disk"); }

    struct Outcome {
        bool wasMade;
        Said said;
    };
    // Saves in a process of its own.
    Outcome save(const Fault& fault) const {
        const pid_t child = fork();
        if (child == 0) {
            alarm(20); // a save that never ends is a fault, too
            m_arm(&fault);
            const Said said = GetParam().save(m_disk);
            const int made = m_made() > 0 ? 4 : 0;
            m_arm(nullptr);
            _exit(made | (said ? 2 | (*said ? 1 : 0) : 0));
        }
        int status = -1;
        waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) < 8) << status;
        const int code = WEXITSTATUS(status);
        return {(code & 4) != 0, (code & 2) != 0 ? Said((code & 1) != 0) : Said()};
    }

    // Lets one call after the other fail; answers how many that were.
    int failEach(Fault fault, const Files& old, const Files& fresh) const {
        for (fault.k = 1;; ++fault.k) {
            start(old);
            const Outcome outcome = save(fault);
            const Files left = found();
            EXPECT_TRUE(left == old || left == fresh)
                << fault.k << ": " << testing::PrintToString(left);
            if (outcome.said) {
                EXPECT_EQ(left == fresh, *outcome.said) << fault.k;
            }
            // A copy of the old file, on a plain disk, need not close well.
            if (outcome.wasMade && outcome.said &&
                (fault.call == Call::sync || (fault.call == Call::close && !fault.plainDisk))) {
                EXPECT_FALSE(*outcome.said) << fault.k << ": the failure was passed over";
            }
            if (!outcome.wasMade || HasFailure())
                return fault.k - 1;
        }
    }

    void (*const m_arm)(const Fault*) = inShim<void(const Fault*)>("torvikArmFault");
    int (*const m_made)() = inShim<int()>("torvikFaultsMade");
    const TemporaryFolder m_folder;
    const std::string m_disk = (m_folder.path() / "disk").string();
};

TEST_P(Faults, FilesAreOldOrNewAndNothingIsLeft) {
    ASSERT_TRUE(m_arm != nullptr && m_made != nullptr) << "the shim is not loaded";
    setenv("TORVIK_HOME", m_folder.path().c_str(), 1);
    start(GetParam().old);
    save({m_disk.c_str(), Call::open, 0, false, false});
    const Files fresh = found();
    ASSERT_EQ(fresh.size(), GetParam().old.size());
    int made = 0;
    for (const bool plainDisk : {false, true})
        for (const bool forEver : {false, true})
            for (const Call call :
                 {Call::open, Call::write, Call::sync, Call::rename, Call::link, Call::close}) {
                SCOPED_TRACE(testing::Message() << "call " << int(call) << ", plain disk "
                                                << plainDisk << ", for ever " << forEver);
                const int count =
                    failEach({m_disk.c_str(), call, 0, forEver, plainDisk}, GetParam().old, fresh);
                EXPECT_TRUE(count > 0 || call == Call::link) << "no call was made to fail";
                made += count;
            }
    std::cout << made << " faults" << std::endl;
}

TEST_P(Faults, EndsWhereNoFileCanBeRemoved) {
    setenv("TORVIK_HOME", m_folder.path().c_str(), 1);
    start(GetParam().old);
    save({m_disk.c_str(), Call::remove, 1, true, true});
}

INSTANTIATE_TEST_SUITE_P(
    Savers, Faults,
    testing::Values(
        Saver{"Program", convert, {{"oprg1", "old"}, {"oprg1.txt", "old text"}}},
        Saver{"WindowProgram", writeInWindow, {{"oprg1", "old"}, {"oprg1.txt", "old text"}}},
        Saver{"PreparedDrawing", prepare, {{"drawing-torvik.plt", "old"}}},
        Saver{"Answers", saveAnswers, {{"drawing.plx", "old"}}},
        Saver{"Tools", saveTools, {{"Maskor.ini", "[Maskor]\nToolCount=1\n"}}}),
    [](const auto& saver) { return std::string(saver.param.name); });

} // namespace
} // namespace torvik

int main(int argc, char* argv[]) {
    if (setenv("ASAN_OPTIONS", "verify_asan_link_order=0", 0) == 0 &&
        getenv("LD_PRELOAD") == nullptr && setenv("LD_PRELOAD", TORVIK_SHIM, 1) == 0)
        execv("/proc/self/exe", argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
