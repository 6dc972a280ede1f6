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
        const char* changes;
        const char* lines;
    } rows[] = {
        {"a tool used throughout stands once", "", "(Tool - T1 6.0mm Slot drill);"},
        {"a tool that comes back stands again", "2.tool=2",
         "(First tool - T1 6.0mm Slot drill);(Second tool - T7 3.0mm Drill);"
         "(Third tool - T1 6.0mm Slot drill);"},
    };
    for (const auto& row : rows) {
        JobToWrite work(threePens);
        work.change(row.changes);
        EXPECT_EQ(header(work, "("), row.lines) << row.says;
        EXPECT_TRUE(work.whole) << row.says;
    }
    JobToWrite odd(threePens);
    odd.job.answers.gstrHeader[2] = "\t1\r\n2 ";
    odd.tools.gudtTools[1] = {1, " Drill\n8 ", 6.25F};
    EXPECT_EQ(header(odd, ""), "Teacher -  1 2;Tool - T1 6.3mm  Drill 8 ;")
        << "line breaks are blanks, and types of tools keep theirs";
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
