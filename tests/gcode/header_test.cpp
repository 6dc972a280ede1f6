// SPDX-License-Identifier: MIT
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

} // namespace
} // namespace torvik
