// SPDX-License-Identifier: MIT
#include "answers/saved_answers.h"

#include "job/job.h"
#include "job/pens.h"
#include "tools/tool_list.h"

#include <algorithm>

namespace torvik {
namespace {

SavedGroup savedGroup(const Settings& settings, const ToolList& tools) {
    // A place behind the list is an error; one whose record cannot be read holds no tool.
    const bool hasTool =
        settings.intTool > tools.gintToolCount || isInList(tools, settings.intTool);
    return {hasTool ? toolAt(tools, settings.intTool).intNumber : std::int16_t{0}, settings};
}

void placeTool(SavedGroup& group, const ToolList& tools) {
    group.settings.intTool = intToolGetId(tools, group.toolNumber);
    group.settings.blnComplete = group.settings.intTool > 0;
    group.settings.intToolGone = group.settings.blnComplete ? std::int16_t{0} : group.toolNumber;
}

void takePen(Job& job, const SavedPen& saved) {
    Pen& pen = job.answers.gudtPens[saved.number];
    pen.blnDrill = saved.blnDrill;
    pen.blnOmit = saved.blnOmit;
    long group = pen.intSettings;
    job.answers.gudtSettings[group] = saved.own.settings;
    for (const SavedGroup& hole : saved.holes)
        job.answers.gudtSettings[++group] = hole.settings;
}

} // namespace

std::string feedUnits(float factor) {
    if (factor == 0)
        return {};
    return factor == 1 ? "(mm/min)" : "(mm/sec)";
}

SavedAnswers answersShape(const Job& job) {
    SavedAnswers shape;
    for (std::int16_t number = 1; number <= penCount; ++number) {
        const Pen& pen = job.answers.gudtPens[number];
        if (!pen.blnUsed)
            continue;
        SavedPen& saved = shape.pens.emplace_back();
        saved.number = number;
        saved.blnCircles = pen.blnCircles;
        saved.holes.resize(static_cast<std::size_t>(pen.intRadiusCount));
    }
    return shape;
}

SavedAnswers answersOfJob(const Job& job, const ToolList& tools) {
    SavedAnswers answers = answersShape(job);
    answers.digest = job.drawing.gstrDigest;
    std::copy(job.answers.gstrHeader.begin(), job.answers.gstrHeader.end(), answers.header.begin());
    answers.sngToolChangeHeight = job.answers.gsngToolChangeHeight;
    answers.sngSafeHeight = job.answers.gsngSafeHeight;
    answers.sngRapidDownTo = job.answers.gsngRapidDownTo;
    answers.sngOrderCount = job.answers.gintOrderCount;
    answers.sngFeedFactor = job.answers.gsngFeedFactor;
    for (SavedPen& saved : answers.pens) {
        const Pen& pen = job.answers.gudtPens[saved.number];
        saved.blnDrill = pen.blnDrill;
        saved.blnOmit = pen.blnOmit;
        long group = pen.intSettings;
        saved.own = savedGroup(job.answers.gudtSettings[group], tools);
        for (SavedGroup& hole : saved.holes)
            hole = savedGroup(job.answers.gudtSettings[++group], tools);
    }
    std::transform(job.answers.gintOrder.begin(), job.answers.gintOrder.end(),
                   answers.order.begin(),
                   [](std::int16_t entry) { return std::max<std::int16_t>(entry, 0); });
    return answers;
}

void takeAnswers(Job& job, SavedAnswers answers, const ToolList& tools) {
    for (SavedPen& pen : answers.pens) {
        placeTool(pen.own, tools);
        for (SavedGroup& hole : pen.holes)
            placeTool(hole, tools);
    }
    std::move(answers.header.begin(), answers.header.end(), job.answers.gstrHeader.begin());
    job.answers.gsngToolChangeHeight = answers.sngToolChangeHeight;
    job.answers.gsngSafeHeight = answers.sngSafeHeight;
    job.answers.gsngRapidDownTo = answers.sngRapidDownTo;
    job.answers.gsngFeedFactor = answers.sngFeedFactor;
    job.answers.gstrFeedUnits = feedUnits(answers.sngFeedFactor);
    for (const SavedPen& pen : answers.pens)
        takePen(job, pen);
    takeOrder(job, answers.order);
}

void takeOrder(Job& job, const std::array<std::int16_t, penCount>& entries) {
    rebuildOrder(job);
    std::array<std::int16_t, penCount> order{};
    const auto end = std::copy_if(entries.begin(), entries.end(), order.begin(),
                                  [](std::int16_t entry) { return entry > 0; });
    // The rebuilt order holds each machined pen once, so any good order is the same pens moved.
    job.answers.gblnOrderSet =
        end == order.begin() + job.answers.gintOrderCount &&
        std::is_permutation(order.begin(), order.end(), job.answers.gintOrder.begin());
    if (job.answers.gblnOrderSet)
        std::copy(order.begin(), order.end(), job.answers.gintOrder.begin());
}

} // namespace torvik
