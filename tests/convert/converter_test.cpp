// SPDX-License-Identifier: MIT
#include "job/hpgl_reader.h"
#include "tests/convert/conversion.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

namespace torvik {
namespace {

namespace fs = std::filesystem;

const fs::path golden = TORVIK_GOLDEN;

// The golden cut job as a.plt and b.plt with answers and tools where the converter looks for them,
// and bad.plt, which is refused.
class Converter : public testing::Test {
protected:
    Converter() {
        fs::create_directories(m_conversion.home() / "PlotSave");
        fs::create_directories(m_conversion.config() / "Baltrum");
        for (const char* name : {"a", "b"}) {
            fs::copy(golden / "cut_job/drawing.plt", path(std::string(name) + ".plt"));
            fs::copy(golden / "cut_job/drawing.plx",
                     m_conversion.home() / "PlotSave" / (std::string(name) + ".plx"));
        }
        fs::copy(golden / "pen_nine/drawing.plt", path("bad.plt"));
        fs::copy(golden / "cut_job/Maskor.ini", m_conversion.config() / "Baltrum/Maskor.ini");
        m_kept = {filesOf(m_conversion.home()), filesOf(m_conversion.config())};
    }
    ~Converter() override {
        EXPECT_EQ(filesOf(m_conversion.home()), m_kept.first) << "saved settings were written";
        EXPECT_EQ(filesOf(m_conversion.config()), m_kept.second) << "tools were written";
    }

    fs::path path(const std::string& name) const { return m_conversion.work() / name; }
    std::string bytes(const std::string& name) const { return readWholeFile(path(name), 1 << 20); }
    void write(const std::string& name, std::string_view text) const {
        std::ofstream(path(name), std::ios::binary) << text;
    }
    // The names in the folder without the drawings.
    std::string names() const {
        std::string found;
        for (const auto& [name, text] : filesOf(m_conversion.work()))
            found += name.ends_with(".plt") ? "" : name + " ";
        return found;
    }
    // What is said of the cut job's program: an arc bulges out of the billet.
    static std::string found(const std::string& program) {
        return program + ": billet-outside: The drawing reaches X-10.000, outside the billet that "
                         "lies from 0 to X120.000.\n";
    }
    // Exit code, standard output and standard error.
    std::string run(const std::vector<std::string>& arguments) {
        const int code = m_conversion.run(arguments);
        return std::to_string(code) + "|" + m_conversion.out + "|" + m_conversion.err;
    }

    Conversion m_conversion;

private:
    std::pair<Files, Files> m_kept;
};

TEST_F(Converter, ConvertsSeveralDrawingsPastABadOne) {
    EXPECT_EQ(run({"a.plt", "bad.plt", "missing.plt", "b.plt", "--target", "winnc", "--number", "7",
                   "--output-dir", "new/folder"}),
              "4|a.plt -> new/folder/oprg7\nb.plt -> new/folder/oprg10\n|" +
                  found("new/folder/oprg7") +
                  "torvik-convert: bad.plt, line 3: pen 9 draws here, but a drawing may use the "
                  "pens 1 to 8 only\ntorvik-convert: missing.plt: the file does not exist\n" +
                  found("new/folder/oprg10"));
    EXPECT_EQ(names(), "new/folder/oprg10 new/folder/oprg10.txt new/folder/oprg7 "
                       "new/folder/oprg7.txt ");
    EXPECT_TRUE(bytes("new/folder/oprg10").starts_with("\x1B&HE:\x12%\r\n:0010\r\nN1 G54\r\n"));
    EXPECT_EQ(run({"a.plt", "--target", "maskor", "--quiet"}), "0||" + found("a.mxc"));
    EXPECT_EQ(bytes("a.mxc"), readWholeFile(golden / "cut_job/expected.mxc", 1 << 20));
}

TEST_F(Converter, RefusesMistakesBeforeAnythingIsWritten) {
    fs::create_directory(path("other"));
    fs::copy(path("a.plt"), path("other/a.plt"));
    const std::vector<std::string> rows[] = {
        {"a.plt", "b.plt", "other/a.plt", "--target", "kestra", "--output-dir", "."},
        {"a.plt", "b.plt", "--target", "wincam", "--number", "32767"},
        {"a.plt", "b.plt", "--target", "kestra", "--output", "c.iso"},
        {"a.plt", "b.plt", "--target", "kestra", "--answers", "drawing.plx"},
        {"a.plt", "--target", "wincam", "--number", "1e3"},
        {"a.plt", "--target", "kestra", "--fast"},
        {"a.plt", "--target", "kestra", "--quiet=3"},
        {"a.plt", "", "--target", "kestra"},
        {"a.plt", "--target", "wincam", "--number", "0"},
        {"a.plt", "--target"},
        {"a.plt"},
        {"--target", "kestra"},
    };
    for (const auto& row : rows) {
        const std::string said = run(row);
        EXPECT_TRUE(said.starts_with("1||torvik-convert: ")) << said;
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
        EXPECT_EQ(names(), "") << said;
    }
}

TEST_F(Converter, OverwritesOnlyWhenTold) {
    write("a.iso", "earlier");
    EXPECT_EQ(run({"a.plt", "b.plt", "--target", "kestra", "--number", "x"}),
              "2|b.plt -> b.iso\n|"
              "torvik-convert: a.iso: the file exists already; --force overwrites it\n" +
                  found("b.iso"));
    EXPECT_EQ(bytes("a.iso"), "earlier");
    EXPECT_EQ(run({"a.plt", "--target", "kestra", "--force", "--strict"}),
              "5||" + found("a.iso") +
                  "torvik-convert: a.iso: the program is not written, something dangerous or wrong "
                  "is in it\n");
    EXPECT_EQ(bytes("a.iso"), "earlier");
    EXPECT_EQ(run({"a.plt", "--target", "kestra", "--force", "--quiet"}), "0||" + found("a.iso"));
    EXPECT_EQ(bytes("a.iso"), bytes("b.iso"));
    EXPECT_EQ(run({"a.plt", "--target", "kestra", "--output", "a.iso"}),
              "0|a.plt -> a.iso\n|" + found("a.iso"));
    // The text beside a program goes with it; alone it may be anything.
    write("notes.txt", "mine");
    EXPECT_EQ(run({"a.plt", "--target", "winnc", "--number", "1", "--output", "notes"}),
              "2||torvik-convert: notes.txt: the file exists already; --force overwrites it\n");
    write("notes", "an earlier program");
    EXPECT_EQ(run({"a.plt", "--target", "winnc", "--number", "1", "--output", "notes", "--quiet"}),
              "0||" + found("notes"));
    fs::permissions(path("a.iso"), fs::perms::owner_read);
    EXPECT_EQ(run({"a.plt", "--target", "kestra", "--force"}),
              "2||torvik-convert: a.iso: the file cannot be written: Permission denied\n");
}

TEST_F(Converter, LeavesBothFilesOrNone) {
    fs::create_directory(path("%MPF1.txt"));
    EXPECT_EQ(run({"a.plt", "--target", "wincam", "--number", "1", "--force"}),
              "2||torvik-convert: %MPF1.txt: there is a folder of this name\n");
    EXPECT_EQ(names(), "");

    // A device that is full after 100 bytes, in the middle of the program.
    write("oprg1", "an earlier program");
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit little{100, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &little);
    const std::string said = run({"a.plt", "--target", "winnc", "--number", "1", "--force"});
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);
    EXPECT_TRUE(said.starts_with("2||torvik-convert: ")) << said;
    EXPECT_TRUE(said.ends_with(": the file cannot be written: File too large\n")) << said;
    EXPECT_EQ(names(), "oprg1 ");
    EXPECT_EQ(bytes("oprg1"), "an earlier program");
}

TEST_F(Converter, SaysThatAProgramIsLongAndRefusesOneThatIsTooLong) {
    const auto runWith = [this](std::string_view depthAndStep) {
        std::string answers = readWholeFile(golden / "cut_job/drawing.plx", 1 << 20);
        answers.replace(answers.find("3,2,#"), 3, depthAndStep);
        write("long.plx", answers);
        return run({"a.plt", "--target", "maskor", "--answers", "long.plx"});
    };
    EXPECT_EQ(runWith("99999,0.001"),
              "4||torvik-convert: a.plt: the program would have more than 20000000 lines, most of "
              "them for the Black lines; larger steps or a smaller depth make it shorter\n");
    EXPECT_EQ(names(), "long.plx ");
    // 400 mm in steps of 1/128 mm, five lines each, and 34 lines.
    EXPECT_EQ(runWith("400,0.0078125"),
              "0|a.plt -> a.mxc\n|a.mxc: billet-depth: The depth of the Black lines is 400.00 mm, "
              "but the billet is only 6.00 mm thick. The tool would cut the table.\n" +
                  found("a.mxc") +
                  "torvik-convert: warning: a.plt: the program has 256034 lines (about 9 MB) in "
                  "51201 depth passes and pecks\n");
    const std::string program = readWholeFile(path("a.mxc"), 1 << 24);
    EXPECT_EQ(std::count(program.begin(), program.end(), '\n'), 256034);
}

TEST_F(Converter, FillsInAMissingDateOnly) {
    fs::copy(golden / "drilled_job/drawing.plt", path("holes.plt"));
    const std::string job = golden.string() + "/drilled_job/";
    run({"holes.plt", "--target", "maskor", "--answers", job + "drawing.plx", "--tools",
         job + "Maskor.ini", "--date", " 1. M\xC3\xA4rz "});
    EXPECT_TRUE(bytes("holes.mxc").starts_with("%\r\n*Date - 1. M\xE4rz\r\n*Designer - Grace\r\n"));
    run({"a.plt", "--target", "maskor", "--date", "1 March"});
    EXPECT_TRUE(bytes("a.mxc").starts_with("%\r\n*Date - 14 March 2025\r\n"));
}

TEST_F(Converter, NamesTheFileThatIsToBlame) {
    write("odd.ini", "[Maskor]\nToolCount=1\nTool01=70000|Drill|5|0\n");
    EXPECT_TRUE(run({"a.plt", "--target", "kestra", "--tools", "odd.ini"})
                    .starts_with("4||torvik-convert: warning: odd.ini: Tool01: "));
    write("large.plt", "");
    fs::resize_file(path("large.plt"), maxDrawingBytes + 1);
    EXPECT_EQ(run({"large.plt", "--target", "kestra"}),
              "2||torvik-convert: large.plt: the file is larger than 256 MB\n");
    const std::string endless = run({"--show", "/dev/zero"}); // is longer than any drawing
    EXPECT_TRUE(endless.starts_with("2||")) << endless;
    EXPECT_TRUE(endless.ends_with("torvik-convert: /dev/zero: the file is larger than 256 MB\n"));
    EXPECT_EQ(run({"a.plt", "--target", "kestra", "--output-dir", "odd.ini/new"}),
              "2||torvik-convert: odd.ini/new: the folder cannot be created: Not a directory\n");
}

TEST_F(Converter, NamesThePipeThatItWaitsFor) {
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    std::thread writer([this] {
        std::this_thread::sleep_for(std::chrono::milliseconds(1200));
        write("pipe", bytes("a.plt"));
    });
    const std::string said = run({"--show", "pipe"});
    writer.join();
    EXPECT_TRUE(said.starts_with("0|Drawing: pipe\n")) << said;
    EXPECT_TRUE(said.ends_with("|torvik-convert: waiting for pipe, a pipe or a device\n")) << said;
}

TEST_F(Converter, ShowsWhatDrawingsHold) {
    fs::copy(golden / "mixed_job/drawing.plt", path("mixed.plt"));
    EXPECT_EQ(run({"--show", "mixed.plt"}),
              "0|Drawing: mixed.plt\nElements: 5 lines, 0 arcs, 3 circles\n"
              "Extents: X -1.513 to 100.000 mm, Y -0.500 to 8.000 mm\n"
              "Pen 1 Black: 3 lines, 0 arcs, 0 circles\nPen 2 Red: 1 line, 0 arcs, 0 circles\n"
              "Pen 3 Green: 0 lines, 0 arcs, 2 circles\n  Circle sizes: 1.00 mm\n"
              "Pen 5 Brown: 1 line, 0 arcs, 0 circles\nPen 6 Orange: 0 lines, 0 arcs, 1 circle\n"
              "  Circle sizes: 4.00 mm\nSkipped: 0 instructions\n|");
}

TEST_F(Converter, ShowsWhatIsSkippedAndWhatHelps) {
    const struct {
        const char* name;
        const char* drawing;
        const char* said;
    } rows[] = {
        {"one.plt", "SP1;PU0,0;PD40,0;PA40,40;",
         "1 instruction, 1 with effect on the drawing; torvik-prepare one.plt makes one that is "
         "read completely"},
        {"two words.plt", "IN;SP1;PU0,0;PD40,0,40,40;PR;pd9,9;",
         "4 instructions, 3 with effect on the drawing; torvik-prepare \"two words.plt\" makes "
         "one that is read completely"},
    };
    for (const auto& row : rows) {
        write(row.name, row.drawing);
        const std::string shown = run({"--show", row.name});
        EXPECT_TRUE(shown.ends_with(std::string("\nSkipped: ") + row.said + "\n|")) << shown;
    }
}

TEST_F(Converter, RunsAsAProgram) {
    const auto call = [this](const std::string& arguments) {
        const std::string command = TORVIK_CONVERT " " + arguments + " > said.log 2>&1";
        const int status = std::system(command.c_str());
        return std::to_string(WEXITSTATUS(status)) + "|" + bytes("said.log");
    };
    EXPECT_EQ(call("--version"), "0|torvik-convert " TORVIK_VERSION "\n");
    const std::string help = call("--help");
    for (const char* option :
         {"0|Usage: ", "--target", "--answers", "--tools", "--number", "--output", "--output-dir",
          "--date", "--force", "--quiet", "--show"})
        EXPECT_NE(help.find(option), std::string::npos) << option;
    EXPECT_EQ(call("--show a.plt 2>&1 >/dev/full |"
                   " grep -c 'torvik-convert: the standard output cannot be written'"),
              "0|1\n");
    EXPECT_EQ(call("bad.plt --target kestra").substr(0, 2), "4|");
}

} // namespace
} // namespace torvik
