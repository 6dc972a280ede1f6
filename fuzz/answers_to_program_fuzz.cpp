// SPDX-License-Identifier: MIT
// A drawing and, behind a zero byte, the answers saved for it: whatever both say, a program of each
// control is read back without a line that the control does not know, and where the answers are
// those that the pages let through, it does just what was asked for.
#include "answers/job_checks.h"
#include "answers/pen_checks.h"
#include "answers/pen_values.h"
#include "answers/saved_answers.h"
#include "answers/tool_check.h"
#include "base/errors.h"
#include "base/logger.h"
#include "fuzz/invariant.h"
#include "gcode/dialects.h"
#include "gcode/program_size.h"
#include "job/hpgl_reader.h"
#include "job/pens.h"
#include "tools/tool_list.h"
#include "trial/trial.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <string_view>

namespace torvik {
namespace {

constexpr std::int64_t longest = 20'000; // lines
constexpr float farthest = 10'000;       // mm, and the same number of anything else

ToolList fuzzedTools() {
    ToolList tools;
    for (std::int16_t number = 1; number <= 9; ++number)
        tools.gudtTools.append({number, "Slot drill", static_cast<float>(number) / 2});
    tools.gintToolCount = 9;
    return tools;
}

bool isUsual(float number) {
    return std::isfinite(number) && std::fabs(number) <= farthest;
}

// Whether the pages would let the group through.
bool isAnswered(const Settings& settings, PenForm form, const ToolList& tools) {
    PenBoxes boxes{shownTexts(settings, form, 1), {}};
    boxes.enabled.fill(true);
    followFinalDepth(boxes, rowDepth, form, 1, {});
    for (const PenRow& row : penRows(form))
        if (!isUsual(settings.*row.field))
            return false;
    Settings stored = settings;
    return isCompleteGroup(settings, form, tools) && !inputFault(boxes, form, settings.blnPeck) &&
           !storeTexts(boxes.text, settings.blnPeck, form, 1, tools, stored);
}

bool isAnswered(const Job& job, const ToolList& tools) {
    for (const float Answers::*const height : heightFields)
        if (!isUsual(job.answers.*height) || job.answers.*height <= 0)
            return false;
    for (const Path& path : job.drawing.gudtPaths)
        for (const float place : {path.sngStartX, path.sngStartY, path.sngEndX, path.sngEndY,
                                  path.sngCentreX, path.sngCentreY, path.sngRadius})
            if (!isUsual(place))
                return false;
    bool isAnsweredWholly = true;
    visitMachinedGroups(job, [&](const MachinedGroup& group) {
        const PenForm form =
            job.answers.gudtPens[group.pen].blnDrill ? PenForm::drilling : PenForm::cutting;
        isAnsweredWholly &= isAnswered(job.answers.gudtSettings[group.settings], form, tools);
    });
    return isAnsweredWholly;
}

void findNone(const check::Findings& findings, check::Kind from, check::Kind to) {
    for (const check::Finding& finding : findings.byLine())
        if (finding.kind >= from && finding.kind <= to) {
            std::fprintf(stderr, "line %u: %s\n", finding.line, check::sentenceOf(finding).c_str());
            holds(false, "a written program is read as it was meant");
        }
}

void tryOn(const Dialect& dialect, const Job& job, const ToolList& tools, bool isWhole) {
    if (programSize(job, tools, dialect).lines > longest)
        return;
    Logger muted;
    const TriedProgram tried = tryProgram(job, tools, dialect, 1, muted);
    if (!tried.isTried())
        return;
    using check::Kind;
    findNone(tried.findings, Kind::lineEnd, Kind::statement);
    findNone(tried.findings, Kind::opening, Kind::ending);
    if (isWhole)
        findNone(tried.findings, Kind::elementLost, Kind::peckDiffers);
}

void run(std::string_view bytes) {
    static const ToolList tools = fuzzedTools();
    const std::size_t end = bytes.find('\0');
    if (end == std::string_view::npos)
        return;
    Job job;
    Logger muted;
    try {
        readInstructions(job.drawing, std::string(bytes.substr(0, end)), "drawing", muted);
        if (!SetUpPens(job, muted))
            return;
        takeAnswers(job, parseAnswers(bytes.substr(end + 1), answersShape(job), "answers"), tools);
        if (groupWithoutTool(job, tools))
            return;
        const bool isWhole = isAnswered(job, tools);
        for (const Dialect& dialect : dialects())
            tryOn(dialect, job, tools, isWhole);
    } catch (const RunTimeError&) { // what cannot be read or counted is refused
    }
}

} // namespace
} // namespace torvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    torvik::run({reinterpret_cast<const char*>(data), size});
    return 0;
}
