// SPDX-License-Identifier: MIT
// Jobs to be written: a drawing whose circle pens are drilled, tools T1, T7 and T16385, heights of
// 50, 5 and 2 mm, and the same plain settings for every group.
#pragma once

#include "base/numbers.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "gcode/program_output.h"
#include "gcode/program_size.h"
#include "gcode/program_writer.h"
#include "tests/job/drawing.h"
#include "tools/tool_list.h"

#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <string>
#include <utility>

namespace torvik {

struct JobToWrite {
    explicit JobToWrite(std::string drawing) : job(setUpDrawing(std::move(drawing))) {
        job.answers.gsngSafeHeight = 5;
        for (Settings& settings : job.answers.gudtSettings)
            settings = {1, 1000, 300, 0, 100, 1, 0, 0, 0, false, false};
        for (Pen& pen : job.answers.gudtPens)
            pen.blnDrill = pen.blnCircles;
        rebuildOrder(job);
        tools.gudtTools = {{1, "Slot drill", 6}, {7, "Drill", 3}, {16385, "Drill", 1}};
        tools.gintToolCount = 3;
        logger.setReport(
            [this](const ErrorReport& report) { reports += std::string(report.cause) + ";"; });
    }

    // The settings of a pen, or of its k-th hole size.
    Settings& of(int pen, int k = 0) {
        return job.answers.gudtSettings[job.answers.gudtPens[pen].intSettings + k];
    }
    // Changes settings, "PEN.NAME=VALUE" or "PEN/K.NAME=VALUE", and heights, "NAME=VALUE".
    void change(const std::string& changes) {
        const std::map<std::string, float Settings::*> fields{
            {"speed", &Settings::sngSpindleSpeed},
            {"feed", &Settings::sngFeedHorizontal},
            {"finalFeed", &Settings::sngFeedFinalPass},
            {"depth", &Settings::sngDepth},
            {"step", &Settings::sngDepthPerPass},
            {"final", &Settings::sngFinalPassDepth},
            {"dwell", &Settings::sngDwell}};
        const std::map<std::string, float Answers::*> heights{
            {"toolChange", &Answers::gsngToolChangeHeight},
            {"safe", &Answers::gsngSafeHeight},
            {"down", &Answers::gsngRapidDownTo}};
        std::istringstream words(changes);
        for (std::string word; words >> word;) {
            const auto equals = word.find('=');
            const auto value = static_cast<float>(leadingNumber(word.substr(equals + 1)));
            const auto dot = word.substr(0, equals).find('.');
            const std::string name = word.substr(dot + 1, equals - dot - 1);
            if (dot == std::string::npos) {
                job.answers.*heights.at(name) = value;
                continue;
            }
            Settings& settings = of(word[0] - '0', dot == 3 ? word[2] - '0' : 0);
            if (name == "tool")
                settings.intTool = toInt16(value);
            else
                settings.*fields.at(name) = value;
        }
    }
    // The statements of the body without their numbers, a semicolon after each.
    std::string body(std::int16_t target) {
        StringSink sink;
        ProgramOutput output(sink);
        whole = WriteGcodes(job, tools, target, output, logger);
        output.flush();
        if (whole)
            expectCounted(target);
        return statements(sink.bytes());
    }
    // The lines of a program are counted as they are written.
    void expectCounted(std::int16_t target) const {
        const Dialect& dialect = dialectFor(target);
        Logger muted;
        StringSink program;
        writeProgram(job, tools, dialect, 1, program, muted);
        EXPECT_EQ(programSize(job, tools, dialect).lines, lineEndsIn(program.bytes()));
    }
    static std::string statements(const std::string& lines) {
        std::string found;
        for (std::size_t at = 0, end = 0; (end = lines.find("\r\n", at)) != lines.npos;
             at = end + 2)
            found += lines.substr(lines[at] == 'N' ? lines.find(' ', at) + 1 : at,
                                  lines[at] == 'N' ? end - lines.find(' ', at) - 1 : end - at) +
                     ";";
        return found;
    }

    Job job;
    ToolList tools;
    Logger logger;
    std::string reports; // the causes, a semicolon after each
    bool whole = false;
};

} // namespace torvik
