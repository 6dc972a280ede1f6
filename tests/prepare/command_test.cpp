// SPDX-License-Identifier: MIT
// torvik-prepare as it is called: what it writes, says and exits with.
#include "base/files.h"
#include "prepare/command/preparer.h"
#include "tests/base/temporary_folder.h"

#include <gtest/gtest.h>
#include <sstream>

namespace torvik {
namespace {

namespace fs = std::filesystem;

class Command : public testing::Test {
protected:
    // Runs the program with a line of arguments, in which "@" stands for the folder.
    int run(const std::string& line) {
        QStringList arguments = QString::fromStdString("torvik-prepare " + line).split(u' ');
        arguments.replaceInStrings(QStringLiteral("@"),
                                   QString::fromStdString(folder.path().string() + "/"));
        out.str("");
        err.str("");
        return runPreparer(arguments, out, err);
    }

    std::string content(const std::string& name) const {
        return readWholeFile(folder.path() / name, 1000);
    }

    TemporaryFolder folder;
    std::ostringstream out;
    std::ostringstream err;
    const std::string square = "IN;\nSP1;\nPU0,0;\nPD40,0;\nPD40,40;\nSP0;\n";
};

TEST_F(Command, WritesBesideTheDrawingAndOverwritesOnlyWhenTold) {
    const std::string a = folder.file("a.hpgl", "pd40,0 40,40").string();
    folder.file("a-torvik.plt", "old");
    EXPECT_EQ(run("@a.hpgl"), 2);
    EXPECT_NE(err.str().find("--force"), std::string::npos);
    EXPECT_EQ(content("a-torvik.plt"), "old");
    EXPECT_EQ(run("@a.hpgl --force"), 0) << err.str();
    EXPECT_EQ(content("a-torvik.plt"), square);
    EXPECT_EQ(out.str(), a + " -> " + a.substr(0, a.size() - 5) + "-torvik.plt\n");
    EXPECT_EQ(run("@a.hpgl -o @a.hpgl"), 2);
    EXPECT_EQ(content("a.hpgl"), "pd40,0 40,40");
    EXPECT_EQ(run("@a.hpgl --quiet --output @b.plt"), 0);
    EXPECT_EQ(out.str(), "");
}

TEST_F(Command, OneBadDrawingDoesNotStopTheRest) {
    const std::string a = folder.file("a.plt", "SP12;PD40,0;").string();
    const std::string b = folder.file("b.plt", "LBtext\x03PD40,0,40,40").string();
    EXPECT_EQ(run("@a.plt @none.plt @b.plt --text none --output-dir @out"), 4);
    EXPECT_EQ(content("out/b-torvik.plt"), square);
    EXPECT_FALSE(fs::exists(folder.path() / "out/a-torvik.plt"));
    EXPECT_EQ(err.str(), "torvik-prepare: " + a +
                             ": the drawing uses pens above 8 (12); say which pen to take for it, "
                             "as in --pen 12=1\n"
                             "torvik-prepare: " +
                             (folder.path() / "none.plt").string() +
                             ": the file does not exist\n"
                             "torvik-prepare: warning: " +
                             b + ": not carried over: texts (not drawn): 1\n");
}

TEST_F(Command, TakesEveryOption) {
    folder.file("a.plt", "PC0,9,9,9;SP0;PU0,0;PD100,0;PU200,0;PD;PU;SP2;PU0,0;PD0,1000;PD0,0;");
    EXPECT_EQ(run("@a.plt --tolerance=0.02 --round-turn 30 --no-arcs --optimize --drop-duplicates "
                  "--origin=-1,2 --scale 2 --mirror x --rotate 90 --dots 1 --pen 0=1 "
                  "--pen #FF0000=3 --report"),
              0)
        << err.str();
    // Mirrored and turned, what lay along X lies along -Y, from the corner at -1, 2 mm.
    EXPECT_EQ(content("a-torvik.plt"), "IN;\nSP1;\nPU1960,100;\nCI20;\nPU1960,300;\nPD1960,500;\n"
                                       "SP2;\nPU1960,500;\nPD-40,500;\nSP0;\n");
    EXPECT_NE(out.str().find("Duplicates taken out: 1"), std::string::npos);
}

TEST_F(Command, TakesPicturesAndTheirColours) {
    folder.file("a.b.SVG", R"(<svg xmlns="http://www.w3.org/2000/svg" width="1mm" height="1mm" )"
                           R"(viewBox="0 0 1 1"><path d="M0 1h1v-1" fill="none" stroke="#102030"/>)"
                           R"(</svg>)");
    EXPECT_EQ(run("@a.b.SVG --pen #102030=1"), 0);
    EXPECT_EQ(content("a.b-torvik.plt"), square);
    // The same line by another way: a layer with an equals sign in its name, in an odd unit.
    folder.file("c.dxf", "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\nA=B\n10\n0\n20\n0\n11\n2.54\n21\n0\n"
                         "0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(run("@c.dxf --units inch --pen layer:a=b=3"), 0) << err.str();
    EXPECT_EQ(content("c-torvik.plt"), "IN;\nSP3;\nPU0,0;\nPD2580.64,0;\nSP0;\n");
    folder.file(
        "d.svg",
        R"(<svg width="720" height="720"><path d="M0,720h72" stroke="red" fill="none"/></svg>)");
    EXPECT_EQ(run("@d.svg --dpi 72"), 0) << err.str();
    EXPECT_EQ(content("d-torvik.plt"), "IN;\nSP2;\nPU0,0;\nPD1016,0;\nSP0;\n");
}

TEST_F(Command, SaysWhatIsWrongWithItsUsage) {
    folder.file("a.plt", "PD40,0");
    for (const char* const line : {"--unknown @a.plt",
                                   "@a.plt --tolerance 0",
                                   "@a.plt --tolerance 0,01",
                                   "@a.plt --round-turn 91",
                                   "@a.plt --scale -1",
                                   "@a.plt --dots nan",
                                   "@a.plt --origin 1",
                                   "@a.plt --mirror z",
                                   "@a.plt --rotate 45",
                                   "@a.plt --text no",
                                   "@a.plt --dpi 0",
                                   "@a.plt --units km",
                                   "@a.plt --pen layer:=1",
                                   "@a.plt --pen layer:A=9",
                                   "@a.plt --pen -1=1",
                                   "@a.plt --pen 1=9",
                                   "@a.plt --pen #12345=1",
                                   "@a.plt --output ",
                                   "@a.plt --output-dir ",
                                   "@a.plt ",
                                   "@a.plt --output b --output-dir c",
                                   "@a.plt @sub/a.plt --output b",
                                   "@a.plt @sub/a.plt --output-dir c"}) {
        EXPECT_EQ(run(line), 1) << line;
        const std::string message = err.str();
        EXPECT_EQ(std::count(message.begin(), message.end(), '\n'), 1) << message;
    }
    EXPECT_EQ(run("--help"), 0);
    EXPECT_NE(out.str().find("--drop-duplicates"), std::string::npos);
}

TEST_F(Command, LeavesNothingBehindWhereItCannotWrite) {
    folder.file("a.plt", "PD40,0");
    EXPECT_EQ(run("@a.plt -o @none/b.plt"), 2);
    fs::create_directory(folder.path() / "dir.plt");
    EXPECT_EQ(run("@a.plt -o @dir.plt"), 2);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 2);

    std::ostringstream full;
    full.setstate(std::ios::failbit);
    EXPECT_EQ(runPreparer({QStringLiteral("torvik-prepare"), QStringLiteral("--help")}, full, err),
              2);
    EXPECT_NE(err.str().find("the standard output cannot be written"), std::string::npos);
}

} // namespace
} // namespace torvik
