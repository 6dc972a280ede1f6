// SPDX-License-Identifier: MIT
// torvik-check: what it prints and tells the shell.
#include "base/files.h"
#include "base/whole_file.h"
#include "check/command/checker.h"
#include "tests/base/temporary_folder.h"
#include "tests/check/good_program.h"

#include <gtest/gtest.h>

namespace torvik::check {
namespace {

struct CheckRun {
    int code = 0;
    std::string out;
    std::string err;
};

CheckRun run(std::vector<std::string> arguments) {
    std::ostringstream out;
    std::ostringstream err;
    arguments.insert(arguments.begin(), "torvik-check");
    const int code = runChecker(std::move(arguments), out, err);
    return {code, out.str(), err.str()};
}

TEST(Checker, FindingsComeFirstAndASummaryLast) {
    const TemporaryFolder folder;
    const std::string good = folder.file("good.iso", changedProgram(0, "")).string();
    const std::string bad = folder.file("bad.iso", changedProgram(41, "")).string();
    const std::string summary = ": Kestra, cuts X10.000 to X65.000, Y10.000 to Y50.000, 4.00 mm "
                                "deep, tools T3 T8, 1 change, about 2 min: ";
    const CheckRun both = run({good, bad});
    EXPECT_EQ(both.code, 5);
    EXPECT_EQ(both.out, good + summary + "0 danger, 0 wrong, 0 look, 0 note\n" + bad +
                            ":44: spindle-off: The tool cuts while the spindle stands still. The "
                            "spindle speed may be missing.\n" +
                            bad + summary + "1 danger, 0 wrong, 0 look, 0 note\n");
    const CheckRun quiet = run({good, "--quiet"});
    EXPECT_EQ(quiet.code, 0);
    EXPECT_EQ(quiet.out + quiet.err, "");
}

TEST(Checker, AFolderIsWalkedAndBecomesATable) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.path() / "9b");
    folder.file("9b/Ada.MXC", "%\r\nN1 G0 Z0.00\r\n%\r\n");
    folder.file("%MPF7", "%MPF7\r\nN1 G54\r\n");
    folder.file("%MPF7.txt", "Designer - Ada\r\n");
    folder.file("renamed.nc", changedProgram(0, ""));
    folder.file("notes.txt", "% of all\r\n");
    const std::string name = folder.path().string();
    const std::string pad(name.size() + 4, ' ');
    const CheckRun table = run({name, "--table"});
    EXPECT_EQ(table.code, 5);
    EXPECT_EQ(
        table.out,
        "program" + pad + "  control  danger  wrong  look  note  deep  minutes  first\n" + name +
            "/%MPF7       WinCAM   0       2      0     0     0.00  0        opening\n" + name +
            "/9b/Ada.MXC  Maskor   1       1      0     0     0.00  0        rapid-down\n" + name +
            "/renamed.nc  Kestra   0       0      0     0     4.00  2        -\n");
}

TEST(Checker, JsonHoldsAllThatIsKnown) {
    const TemporaryFolder folder;
    const std::string file = folder.file("a.mxc", "%\r\nN1 \"\r\n%\r\n").string();
    EXPECT_EQ(run({file, "--json"}).out,
              "[{\"file\":\"" + file +
                  "\",\"control\":\"maskor\",\"findings\":[{\"line\":2,\"kind\":\"statement\","
                  "\"level\":\"wrong\",\"sentence\":\"\\\"\\\"\\\" is not a line that Maskor "
                  "programs have at this place.\"}],\"summary\":{\"lowX\":null,\"highX\":null,"
                  "\"lowY\":null,\"highY\":null,\"deepest\":0.00,\"tools\":[],\"changes\":0,"
                  "\"minutes\":0.00,\"minutesLookingAhead\":0.00,\"danger\":0,\"wrong\":1,\"look\":"
                  "0,\"note\":0}}]\n");
}

TEST(Checker, WhatCannotBeReadIsNamedAndTheRestIsChecked) {
    const TemporaryFolder folder;
    const std::string good = folder.file("good.iso", changedProgram(0, "")).string();
    const CheckRun missing = run({folder.path().string() + "/none.iso", good, "--table"});
    EXPECT_EQ(missing.code, 2);
    EXPECT_EQ(missing.err,
              "torvik-check: " + folder.path().string() + "/none.iso: the file does not exist\n");
    EXPECT_NE(missing.out.find(good), std::string::npos);

    EXPECT_EQ(run({}).err, "torvik-check: no program is named (see --help)\n");
    EXPECT_EQ(run({good, "--target", "lathe"}).code, 1);
    EXPECT_EQ(run({good, "--json", "--table"}).code, 1);
    EXPECT_EQ(run({good, "--target", "maskor", "--quiet"}).code, 5);
    EXPECT_EQ(run({"--help"}).code, 0);
}

TEST(Checker, AProgramIsLaidBesideItsJob) {
    const TemporaryFolder folder;
    const std::string job = TORVIK_GOLDEN "/drilled_job/";
    std::string program = readWholeFile(job + "expected.mxc", 1 << 20);
    const std::vector<std::string> sources{"--drawing", job + "drawing.plt",
                                           "--answers", job + "drawing.plx",
                                           "--tools",   job + "Maskor.ini"};
    const auto runBeside = [&](std::vector<std::string> arguments) {
        arguments.insert(arguments.end(), sources.begin(), sources.end());
        return run(std::move(arguments));
    };
    const std::string good = folder.file("good.mxc", program).string();
    EXPECT_EQ(runBeside({good, "--quiet"}).code, 0);
    program.replace(program.find("S1800"), 5, "S2800");
    const std::string bad = folder.file("bad.mxc", program).string();
    EXPECT_EQ(run({bad, "--quiet"}).code, 0);
    const CheckRun found = runBeside({bad, "--quiet"});
    EXPECT_EQ(found.code, 5);
    EXPECT_NE(found.out.find(": speed-differs: "), std::string::npos) << found.out;

    // The answers themselves: the circle of this job bulges out of its billet.
    const std::string cut = TORVIK_GOLDEN "/cut_job/";
    const std::string outside = cut + "expected.mxc";
    EXPECT_EQ(run({outside, "--quiet", "--drawing", cut + "drawing.plt", "--answers",
                   cut + "drawing.plx", "--tools", cut + "Maskor.ini"})
                  .out,
              outside + ": billet-outside: The drawing reaches X-10.000, outside the billet that "
                        "lies from 0 to X120.000.\n");

    const std::string foreign = TORVIK_GOLDEN "/cut_job/drawing.plx";
    const CheckRun other =
        run({good, "--drawing", job + "drawing.plt", "--answers", foreign, "--tools", sources[5]});
    EXPECT_EQ(other.code, 2);
    EXPECT_NE(other.err.find("belong to another drawing"), std::string::npos) << other.err;
    EXPECT_EQ(run({good, "--tools", sources[5]}).code, 1);
}

} // namespace
} // namespace torvik::check
