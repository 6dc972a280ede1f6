// SPDX-License-Identifier: MIT
#include "gcode/comment_check.h"
#include "gcode/header.h"
#include "tests/gcode/job_to_write.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

constexpr const char* threePens = "SP1;PD1,1;SP2;PD1,1;SP3;PD1,1";

std::string header(JobToWrite& work, std::string_view opener) {
    StringSink sink;
    ProgramOutput output(sink);
    const std::string_view closer = opener == "(" ? ")" : "";
    work.whole = WriteHeader(work.job, work.tools, opener, closer, output, work.logger);
    output.flush();
    return work.statements(sink.bytes());
}

TEST(WriteHeader, WritesFieldsAndTools) {
    const struct {
        const char* says;
        void (*change)(JobToWrite&);
        const char* opener;
        const char* lines;
    } rows[] = {
        {"a tool used throughout stands once", [](JobToWrite&) {}, "(",
         "(Tool - T1 6.0mm Slot drill);"},
        {"a tool that comes back stands again", [](JobToWrite& w) { w.of(2).intTool = 2; }, "*",
         "*First tool - T1 6.0mm Slot drill;*Second tool - T7 3.0mm Drill;"
         "*Third tool - T1 6.0mm Slot drill;"},
        {"an empty order has no tool", [](JobToWrite& w) { w.job.answers.gintOrder.fill(0); }, "",
         ""},
        {"values are trimmed of blanks, tool types are not",
         [](JobToWrite& w) {
             w.job.answers.gstrHeader[0] = "  \t1 May  ";
             w.job.answers.gstrHeader[5] = "   ";
             w.job.answers.gstrHeader[6] = " 100";
             w.tools.gudtTools[1].strType = " Drill ";
             w.tools.gudtTools[1].sngDiameter = 6.25F;
         },
         "(", "(Date -  1 May);(Billet Length X - 100mm);(Tool - T1 6.3mm  Drill );"},
        {"line breaks are blanks, letters ISO 8859-1 or question marks, brackets stand",
         [](JobToWrite& w) {
             w.job.answers.gstrHeader[2] = "M\xC3\xBCller\r\n(\xCE\xA9)";
             w.tools.gudtTools[1].strType = "Fr\xC3\xA4ser\n8";
         },
         "(", "(Teacher - M\xFCller (?));(Tool - T1 6.0mm Fr\xE4ser 8);"},
    };
    for (const auto& row : rows) {
        JobToWrite work(threePens);
        row.change(work);
        EXPECT_EQ(header(work, row.opener), row.lines) << row.says;
        EXPECT_TRUE(work.whole) << row.says;
    }
}

TEST(WriteHeader, StopsWhereItCannotGoOn) {
    JobToWrite pens(threePens);
    pens.job.answers.gintOrder[3] = 9;
    EXPECT_EQ(header(pens, "("), "") << "a pen above 8 leaves no tool line";
    JobToWrite missing(threePens);
    missing.of(2).intTool = 4;
    EXPECT_EQ(header(missing, "("), "(First tool - T1 6.0mm Slot drill);");
}

TEST(CommentFaults, NameFieldTextAndLetters) {
    JobToWrite work(threePens);
    work.of(2).intTool = 2;
    work.job.answers.gstrHeader[1] = " Anna (7b) ";
    work.job.answers.gstrHeader[5] = "\xC5\x81\xC3\xB3"
                                     "d\xC5\x81 \xFF";
    work.tools.gudtTools[1].strType = "Drill)";
    const std::string letters = "Material|\xC5\x81\xC3\xB3"
                                "d\xC5\x81 \xFF||\xC5\x81 \xEF\xBF\xBD;";
    const std::pair<std::int16_t, std::string> rows[] = {
        {targetKestra, "Designer|Anna (7b)|ends|;" + letters + "T1|Drill)|ends|;"},
        {targetMaskor, letters}, // a comment there ends with its line
        {targetWinCam, letters}, // in the text beside the program
    };
    for (const auto& [target, expected] : rows) {
        std::string found;
        for (const CommentFault& fault : commentFaults(work.job, work.tools, dialectFor(target)))
            found += fault.field + "|" + fault.text + (fault.endsComment ? "|ends|" : "||") +
                     fault.lost + ";";
        EXPECT_EQ(found, expected) << target;
    }
}

} // namespace
} // namespace torvik
