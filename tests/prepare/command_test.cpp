// SPDX-License-Identifier: MIT
// torvik-prepare as it is called: what it writes, says and exits with.
#include "prepare/command/preparer.h"
#include "tests/base/temporary_folder.h"

#include <gtest/gtest.h>
#include <sstream>

namespace torvik {
namespace {

namespace fs = std::filesystem;

class Command : public testing::Test {
protected:
    int run(const QStringList& arguments) {
        out.str("");
        err.str("");
        return runPreparer(QStringList{QStringLiteral("torvik-prepare")} + arguments, out, err);
    }

    QString path(const std::string& name) const {
        return QString::fromStdString((folder.path() / name).string());
    }

    std::string content(const std::string& name) const {
        std::ifstream file(folder.path() / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    TemporaryFolder folder;
    std::ostringstream out;
    std::ostringstream err;
    const std::string square = "IN;\nSP1;\nPU0,0;\nPD40,0;\nPD40,40;\nSP0;\n";
};

TEST_F(Command, WritesBesideTheDrawingAndNeverOverIt) {
    folder.file("a.hpgl", "pd40,0 40,40");
    EXPECT_EQ(run({path("a.hpgl")}), 0) << err.str();
    EXPECT_EQ(content("a-torvik.plt"), square);
    EXPECT_EQ(out.str(), (path("a.hpgl") + QStringLiteral(" -> ") + path("a-torvik.plt") +
                          QStringLiteral("\n"))
                             .toStdString());
    EXPECT_EQ(run({path("a.hpgl"), QStringLiteral("-o"), path("a.hpgl")}), 2);
    EXPECT_EQ(content("a.hpgl"), "pd40,0 40,40");
}

TEST_F(Command, OverwritesOnlyWhenTold) {
    folder.file("a.plt", "PD40,0,40,40");
    folder.file("a-torvik.plt", "old");
    EXPECT_EQ(run({path("a.plt")}), 2);
    EXPECT_NE(err.str().find("--force"), std::string::npos);
    EXPECT_EQ(content("a-torvik.plt"), "old");
    EXPECT_EQ(run({path("a.plt"), QStringLiteral("--force"), QStringLiteral("--quiet")}), 0);
    EXPECT_EQ(out.str(), "");
    EXPECT_EQ(content("a-torvik.plt"), square);
    folder.file("b.plt", "old");
    EXPECT_EQ(run({path("a.plt"), QStringLiteral("--output"), path("b.plt")}), 0);
    EXPECT_EQ(content("b.plt"), square);
}

TEST_F(Command, OneBadDrawingDoesNotStopTheRest) {
    folder.file("a.plt", "SP12;PD40,0;");
    folder.file("b.plt", "LBtext\x03PD40,0,40,40");
    EXPECT_EQ(run({path("a.plt"), path("none.plt"), path("b.plt"), QStringLiteral("--output-dir"),
                   path("out")}),
              4);
    EXPECT_EQ(content("out/b-torvik.plt"), square);
    EXPECT_FALSE(fs::exists(folder.path() / "out/a-torvik.plt"));
    const std::string a = path("a.plt").toStdString();
    const std::string none = path("none.plt").toStdString();
    const std::string b = path("b.plt").toStdString();
    EXPECT_EQ(err.str(), "torvik-prepare: " + a +
                             ": the drawing uses pens above 8 (12); say which pen to take for it, "
                             "as in --pen 12=1\n"
                             "torvik-prepare: " +
                             none + ": the file does not exist\n" + "torvik-prepare: warning: " +
                             b + ": not carried over: texts (not drawn): 1\n");
}

TEST_F(Command, TakesEveryOption) {
    folder.file("a.plt", "SP9;PU0,0;PD100,0;PU200,0;PD;PU;SP2;PU0,0;PD0,1000;PD0,0;");
    EXPECT_EQ(run({path("a.plt"),
                   QStringLiteral("--tolerance=0.02"),
                   QStringLiteral("--round-turn"),
                   QStringLiteral("30"),
                   QStringLiteral("--no-arcs"),
                   QStringLiteral("--optimize"),
                   QStringLiteral("--drop-duplicates"),
                   QStringLiteral("--origin=-1,2"),
                   QStringLiteral("--scale"),
                   QStringLiteral("2"),
                   QStringLiteral("--mirror"),
                   QStringLiteral("x"),
                   QStringLiteral("--rotate"),
                   QStringLiteral("90"),
                   QStringLiteral("--dots"),
                   QStringLiteral("1"),
                   QStringLiteral("--pen"),
                   QStringLiteral("9=1"),
                   QStringLiteral("--pen"),
                   QStringLiteral("#FF0000=3"),
                   QStringLiteral("--report")}),
              0)
        << err.str();
    // Mirrored and turned, what lay along X lies along -Y, from the corner at -1, 2 mm.
    EXPECT_EQ(content("a-torvik.plt"), "IN;\nSP1;\nPU1960,100;\nCI20;\nPU1960,300;\nPD1960,500;\n"
                                       "SP2;\nPU1960,500;\nPD-40,500;\nSP0;\n");
    EXPECT_NE(out.str().find("Duplicates taken out: 1"), std::string::npos);
}

TEST_F(Command, TakesPicturesAndTheirColours) {
    folder.file("a.SVG", R"(<svg xmlns="http://www.w3.org/2000/svg" width="1mm" height="1mm" )"
                         R"(viewBox="0 0 1 1"><path d="M0 1h1v-1" fill="none" stroke="#102030"/>)"
                         R"(</svg>)");
    EXPECT_EQ(run({path("a.SVG"), QStringLiteral("--pen"), QStringLiteral("#102030=1")}), 0);
    EXPECT_EQ(content("a-torvik.plt"), square);
}

TEST_F(Command, SaysWhatIsWrongWithItsUsage) {
    folder.file("a.plt", "PD40,0");
    const QString a = path("a.plt");
    const std::vector<QStringList> cases{
        {},
        {QStringLiteral("--unknown"), a},
        {a, QStringLiteral("--tolerance"), QStringLiteral("0")},
        {a, QStringLiteral("--tolerance"), QStringLiteral("0,01")},
        {a, QStringLiteral("--round-turn"), QStringLiteral("91")},
        {a, QStringLiteral("--scale"), QStringLiteral("-1")},
        {a, QStringLiteral("--dots"), QStringLiteral("nan")},
        {a, QStringLiteral("--origin"), QStringLiteral("1")},
        {a, QStringLiteral("--mirror"), QStringLiteral("z")},
        {a, QStringLiteral("--rotate"), QStringLiteral("45")},
        {a, QStringLiteral("--pen"), QStringLiteral("1=9")},
        {a, QStringLiteral("--pen"), QStringLiteral("#12345=1")},
        {a, QStringLiteral("--output"), QString()},
        {a, QStringLiteral("--output-dir"), QString()},
        {a, QString()},
        {a, QStringLiteral("--output"), QStringLiteral("b"), QStringLiteral("--output-dir"),
         QStringLiteral("c")},
        {a, path("sub/a.plt"), QStringLiteral("--output"), QStringLiteral("b")},
        {a, path("sub/a.plt"), QStringLiteral("--output-dir"), QStringLiteral("c")},
    };
    for (const QStringList& arguments : cases) {
        EXPECT_EQ(run(arguments), 1) << arguments.join(u' ').toStdString();
        const std::string message = err.str();
        EXPECT_EQ(std::count(message.begin(), message.end(), '\n'), 1) << message;
    }
    EXPECT_FALSE(fs::exists(folder.path() / "a-torvik.plt"));
    EXPECT_EQ(run({QStringLiteral("--help")}), 0);
    EXPECT_NE(out.str().find("--drop-duplicates"), std::string::npos);
}

TEST_F(Command, LeavesNothingBehindWhereItCannotWrite) {
    folder.file("a.plt", "PD40,0");
    EXPECT_EQ(run({path("a.plt"), QStringLiteral("-o"), path("none/b.plt")}), 2);
    fs::create_directory(folder.path() / "dir.plt");
    EXPECT_EQ(run({path("a.plt"), QStringLiteral("-o"), path("dir.plt")}), 2);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), {}), 2);

    std::ostringstream full;
    full.setstate(std::ios::failbit);
    EXPECT_EQ(runPreparer({QStringLiteral("torvik-prepare"), QStringLiteral("--help")}, full, err),
              2);
    EXPECT_NE(err.str().find("the standard output cannot be written"), std::string::npos);
}

} // namespace
} // namespace torvik
