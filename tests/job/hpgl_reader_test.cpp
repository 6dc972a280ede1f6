// SPDX-License-Identifier: MIT
#include "base/files.h"
#include "base/picture.h"
#include "job/hpgl_reader.h"
#include "tests/base/temporary_folder.h"
#include "tests/job/drawing.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

using std::string_literals::operator""s;

// At most three decimals, without zeros at their end.
std::string brief(float value) {
    const std::string text = formatFixed(value, 3);
    const auto last = text.find_last_not_of('0');
    return text.substr(0, text[last] == '.' ? last : last + 1);
}

std::string point(float x, float y) {
    return brief(x) + "," + brief(y);
}

// "PEN START>END; ..." and for arcs "PEN START>END ccw CENTRE r RADIUS FROM..TO; ..." (or "cw").
std::string described(const Job& job) {
    std::string text;
    for (const Path& path : job.drawing.gudtPaths) {
        text += text.empty() ? "" : "; ";
        text += std::to_string(path.intPen) + " " + point(path.sngStartX, path.sngStartY) + ">" +
                point(path.sngEndX, path.sngEndY);
        if (path.intType != straightLine)
            text += (path.intType == arcClockwise ? " cw " : " ccw ") +
                    point(path.sngCentreX, path.sngCentreY) + " r " + brief(path.sngRadius) + " " +
                    brief(path.sngAngleFrom) + ".." + brief(path.sngAngleTo);
    }
    return text;
}

TEST(HpglReader, ReadsWhatADrawingHolds) {
    const struct {
        const char* says;
        std::string drawing;
        const char* elements;
    } rows[] = {
        {"lines end at CR LF, LF or CR", "SP1\r\nPD40,0\rPD80,0\n\r\nPD0,0\r",
         "1 0,0>1,0; 1 1,0>2,0; 1 2,0>0,0"},
        {"an instruction ends with its line", "SP1;PD40\n,80;PD80,40", "1 0,0>2,1"},
        {"blanks at both ends of a line are trimmed", "  SP1;\n  PD40,80  \n", "1 0,0>1,2"},
        {"a tab at the start of a line is not", "SP1;\n\tPD40,80;PD80,80", "1 0,0>2,2"},
        {"a blank is a comma, which leaves X empty", "SP1;PD 400 400;", "1 0,0>0,10"},
        {"a blank after the comma leaves Y empty", "SP1;PD400, 800", "1 0,0>10,0"},
        {"a blank after a semicolon hides the instruction", "SP1; PD40,0;PD80,0", "1 0,0>2,0"},
        {"tabs before a number are skipped", "SP1;PD\t40,\t80", "1 0,0>1,2"},
        {"only the first pair counts", "SP1;PD400,400,800,800;PD0,0,9", "1 0,0>10,10; 1 10,10>0,0"},
        {"PU and PD need a comma", "SP1;PU40,40;PU;PD;PD9;PU0;PD80,80", "1 1,1>2,2"},
        {"what is no instruction is skipped", "IN;SP1;pd4,4;Pd4,4;XPD4,4;P;LBPD;PD80,0",
         "1 0,0>2,0"},
        {"what follows the mnemonic is the number", "SP1;PDX40,80", "1 0,0>0,2"},
        {"malformed numbers are 0 or end early", "SP1;PD--40,80;PD40x0,8E1",
         "1 0,0>0,2; 1 0,2>1,2"},
        {"a byte that is not ASCII hides an instruction", "SP1;\xC4PD40,0;PD80,0", "1 0,0>2,0"},
        {"... or ends a number", "SP1;PD4\xB2,80", "1 0,0>0.1,2"},
        {"a NUL byte does so too", "SP1;\0PD40,0;PD4\0,80\0"s, "1 0,0>0.1,2"},
        {"an arc leaves the plotter at its end", "SP2;PU400,0;AA0,0,90.0,5;PD0,0",
         "2 10,0>0,10 ccw 0,0 r 10 0..1.571; 2 0,10>0,0"},
        {"missing items of AA are 0, and no sweep is clockwise", "SP1;PU400,0;AA;AA200;",
         "1 10,0>10,0 cw 0,0 r 10 0..0; 1 10,0>10,0 cw 5,0 r 5 0..0"},
        {"a circle starts at its top and leaves the plotter there", "SP1;CI200;CI40,5",
         "1 0,5>0,5 ccw 0,0 r 5 1.571..1.571; 1 0,6>0,6 ccw 0,5 r 1 1.571..1.571"},
        {"a negative radius starts at the foot", "SP1;CI-200",
         "1 0,-5>0,-5 ccw 0,0 r 5 4.712..4.712"},
        {"a missing radius is 0", "SP1;CI;PD40,0", "1 0,0>0,0 ccw 0,0 r 0 0..0; 1 0,0>1,0"},
        {"SP with a blank ends the drawing, which is no number", "SP1;PD40,0;SP 2;PD80,0",
         "1 0,0>1,0"},
        {"so does a negative pen", "SP1;PD40,0;SP-40000;PD80,0", "1 0,0>1,0"},
        {"nothing after SP0 is checked", "SP8;PD40,0;SP0;PD1E999,0;SP99999;SP9;PD0,0", "8 0,0>1,0"},
        {"a pen is rounded, half to even", "SP2.5;PD40,0;SP3.5;PD0,0;SP0.6;PD40,0",
         "2 0,0>1,0; 4 1,0>0,0; 1 0,0>1,0"},
        {"a pen that does not draw may have any number", "SP9;PU40,40;SP1;PD0,0", "1 1,1>0,0"},
        {"a number that is not used may be too large", "SP1;PD40,40,1E999;PU1E999", "1 0,0>1,1"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(described(readDrawing(row.drawing)), row.elements) << row.says;
}

TEST(HpglReader, CountsWhatItDoesNotReadAsWritten) {
    const struct {
        const char* says;
        const char* drawing;
        long lost, harmless;
        bool isPlain;
    } rows[] = {
        {"its own instructions are whole", "IN;SP1;PU0,0;PD1,1;AA0,0,9;CI5,1;SP0;", 0, 1, true},
        {"an arc with the pen up is drawn in a plain drawing", "SP1;PU9,0;AA0,0,90;", 0, 0, true},
        {"... but elsewhere a plotter would move", "SP1;VS9;PU9,0;AA0,0,90;", 1, 1, false},
        {"bare PU and PD go nowhere", "SP1;PU;PD;PU0,0", 0, 0, true},
        {"PA after a bare PD is lost", "PD;PA5,5;PA6,6;PA;", 2, 1, false},
        {"after a bare PR all that follows lies elsewhere", "SP1;PR;PD1,1;", 1, 0, false},
        {"further pairs are lost", "SP1;PD1,1,2,2;PU1,1,2,2", 2, 0, false},
        {"a blank in the way is a comma", "SP1;PD 10 20;PU10 20", 1, 0, false},
        {"a pen behind a blank ends the drawing", "SP 2;PD9,9", 2, 0, false},
        {"a radius behind a blank is 0", "SP1;CI 200", 1, 0, false},
        {"no sweep, or more than a turn, is another arc", "SP1;PD5,0;AA0,0,0;AA0,0,450", 2, 0,
         false},
        {"a sweep behind a blank is none", "SP1;PD5,0;AA0,0, 90", 1, 0, false},
        {"after a circle a plotter stands at its centre", "SP1;CI5;PD9,9;PD5,5", 1, 0, false},
        {"small letters are not understood", "pd1,1;vs5", 1, 1, false},
        {"a blank after a semicolon hides what follows", "PU0,0; PD1,1;", 1, 0, false},
        {"what follows without a semicolon is lost", "PU0,0PD1,1;", 1, 0, false},
        {"units and labels are lost, their resets are not", "SC0,1,0,1;SC;LBtext;RO90;IP;", 3, 2,
         false},
        {"nothing is read after the pen is put away", "SP0;PU0,0;PD1,1;CI5;SP1;", 2, 2, false},
        {"a return to the origin behind a blank", "SP1;PU4,4;PD8,4; IN 1\nAA4,4,9;", 1, 1, false},
        {"a return to the origin lifts the pen", "SP1;PD4,0;PD0,0;VS5;IN;AA4,0,9;", 1, 2, false},
        {"a last move that hides an instruction", "SP0;SP 4CI200;PU 1;", 1, 1, false},
        {"lines end in all three ways", "PU0,0\rPE<=;\nEA1,1\r\nVS1", 2, 1, false},
        {"unknown ones do no harm that can be told", "QQ1;;,;?", 0, 2, false},
        {"what a printer wants said does no harm", "\x1B%-1BIN;SP1;PD4,4;\x1B%0A", 0, 2, false},
        {"... but may hide an instruction", "\x1B%-1BPU9,9;SP1;PD4,4;", 1, 0, false},
        {"an exponent is no instruction", "SP1;PD1e3,2E1", 0, 0, true},
    };
    for (const auto& row : rows) {
        const Reading reading = readDrawing(row.drawing).drawing.reading;
        EXPECT_EQ(std::tuple(reading.lost, reading.harmless, reading.isPlain),
                  std::tuple(row.lost, row.harmless, row.isPlain))
            << row.says;
    }
}

class DrawingFile : public testing::Test {
protected:
    bool read(std::string_view bytes) {
        return blnGetCommands(job, folder.file("a.plt", bytes), logger);
    }

    TemporaryFolder folder;
    std::string name = (folder.path() / "a.plt").string();
    std::vector<std::string> causes;
    Logger logger{folder.path() / "log",
                  [this](const ErrorReport& report) { causes.emplace_back(report.cause); }};
    Job job;
};

TEST_F(DrawingFile, ThatCannotBeReadToItsEndIsRefusedAsAWhole) {
    std::string full = "SP1\n";
    for (int i = 0; i < 32767; ++i)
        full += "PD1,1\n";
    const std::string tooLarge = "a number is too large to be stored";
    const std::string wrongPen = " draws here, but a drawing may use the pens 1 to 8 only";
    const struct {
        const char* says;
        std::string drawing;
        std::string cause;
    } rows[] = {
        {"a text of two bytes a letter", "\xFF\xFES",
         ": this text is in UTF-16; please save the drawing as plain text"},
        {"the same without its mark", std::string("S\0P\0", 4),
         ": this text is in UTF-16; please save the drawing as plain text"},
        {"an element before any SP", "PU1,1\nPD40,0", ", line 2: pen 0" + wrongPen},
        {"a pen above 8", "SP1;PD40,0\r\n\r\nSP9;CI40", ", line 3: pen 9" + wrongPen},
        {"a pen that rounds to 0", "SP0.5;AA1,1,1", ", line 1: pen 0" + wrongPen},
        {"a pen outside 16 bits", "SP1;PD40,0\rSP32768",
         ", line 2: the whole number is outside -32768 to 32767"},
        {"a coordinate outside single", "SP1;PD40,0;PD2E40,0", ", line 1: " + tooLarge},
        {"a coordinate outside double", "SP1\nPU0,-1E999", ", line 2: " + tooLarge},
        {"a sweep outside single", "SP1;AA1,1,1D39", ", line 1: " + tooLarge},
        {"a radius outside single", "SP1;PU1E40,0;AA-1E40,0,9", ", line 1: " + tooLarge},
        {"an element too many", full + "PD1,1",
         ", line 32769: the drawing has more than 32767 lines, arcs and circles"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.says);
        ASSERT_TRUE(read("SP1;PD40,40"));
        EXPECT_FALSE(read(row.drawing));
        EXPECT_EQ(causes.back(), name + row.cause);
        EXPECT_EQ(job.drawing.gintPathCount + job.drawing.gudtPaths.count(), 0);
        EXPECT_EQ(job.drawing.gstrPlotFile, "");
        EXPECT_FALSE(job.output.gblnUnsaved);
    }
    EXPECT_TRUE(read(full));
    EXPECT_EQ(job.drawing.gintPathCount, 32767);
    EXPECT_EQ(causes.size(), std::size(rows)) << "each is reported once";
}

TEST_F(DrawingFile, ThatIsReadStartsAFreshJob) {
    job = setUpDrawing("SP3;CI40;SP4;PD1,1");
    job.answers.gsngToolChangeHeight = job.answers.gsngSafeHeight = job.answers.gsngRapidDownTo =
        job.answers.gsngFeedFactor = 60;
    job.position.gintCurrentPen = 3;
    ASSERT_TRUE(read("SP1;CI;CI40;SP0"));
    EXPECT_EQ(job.drawing.gstrPlotFile, name);
    EXPECT_TRUE(job.output.gblnUnsaved);
    EXPECT_EQ(job.drawing.gintPathCount, 2);
    EXPECT_EQ(std::tuple(job.answers.gsngToolChangeHeight, job.answers.gsngSafeHeight,
                         job.answers.gsngRapidDownTo, job.answers.gsngFeedFactor),
              std::tuple(50, 0, 2, 0));
    EXPECT_EQ(job.position.gintCurrentPen + job.answers.gintSettingsCount, 0);
    EXPECT_TRUE(causes.empty());
    EXPECT_NE(readWholeFile(folder.path() / "log", 10000)
                  .find("error sngArcCos (modHpgl): a number was divided by zero"),
              std::string::npos)
        << "a circle of radius 0 is logged";
}

} // namespace
} // namespace torvik
