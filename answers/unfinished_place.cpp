// SPDX-License-Identifier: MIT
#include "answers/unfinished_place.h"

#include "answers/job_checks.h"
#include "job/job.h"
#include "job/machined_groups.h"
#include "job/pens.h"

#include <algorithm>
#include <optional>
#include <tuple>

namespace torvik {
namespace {

bool areHeightsGiven(const Answers& answers) {
    return answers.gsngFeedFactor != 0 &&
           std::ranges::none_of(heightFields, [&](auto field) { return answers.*field == 0; });
}

// The first page, before the one given, of a machined group that is not complete.
std::optional<WizardPlace> incompletePage(const Job& job, const WizardPlace& before) {
    std::optional<WizardPlace> found;
    const auto look = [&](const MachinedGroup& group) {
        const bool isBefore = before.step > 3 || std::tie(group.pen, group.radius) <
                                                     std::tie(before.pen, before.radius);
        if (!found && isBefore && !job.answers.gudtSettings[group.settings].blnComplete)
            found = WizardPlace{3, group.pen, group.radius};
    };
    for (std::int16_t pen = 1; pen <= penCount; ++pen)
        if (isMachined(job.answers, pen))
            visitGroupsOfPen(job.answers, pen, look);
    return found;
}

std::int16_t usedPen(const Answers& answers, bool fromBehind) {
    std::int16_t found = 0;
    for (std::int16_t pen = 1; pen <= penCount; ++pen)
        if (answers.gudtPens[pen].blnUsed && (found == 0 || fromBehind))
            found = pen;
    return found;
}

// The page of a pen and hole size where the drawing has it.
WizardPlace penPage(const Answers& answers, const WizardPlace& stopped) {
    if (stopped.pen == 0 || !answers.gudtPens[stopped.pen].blnUsed)
        return {3, usedPen(answers, false), 0};
    const Pen& pen = answers.gudtPens[stopped.pen];
    const bool hasSize = pen.blnDrill && stopped.radius <= pen.intRadiusCount;
    return {3, stopped.pen, hasSize ? stopped.radius : std::int16_t{0}};
}

bool isHeaderGiven(const Answers& answers) {
    HeaderTexts texts;
    std::copy(answers.gstrHeader.begin(), answers.gstrHeader.end(), texts.begin());
    return !missingHeaderLine(texts);
}

} // namespace

WizardPlace placeOf(const Job& job) {
    if (job.gintWizardStep == 3)
        return {3, job.position.gintCurrentPen, job.position.gintCurrentRadius};
    return {job.gintWizardStep, 0, 0};
}

WizardPlace placeToShow(const Job& job, const WizardPlace& stopped) {
    const Answers& answers = job.answers;
    const std::int16_t lastPen = usedPen(answers, true);
    if (stopped.step <= 2 || lastPen == 0 || !areHeightsGiven(answers))
        return {2, 0, 0};
    if (const auto page = incompletePage(job, stopped))
        return *page;
    if (stopped.step == 3)
        return penPage(answers, stopped);
    if (stopped.step == 4 || !answers.gblnOrderSet)
        return {4, lastPen, 0};
    const std::int16_t step = isHeaderGiven(answers) ? stopped.step : std::int16_t{5};
    return {step, lastPen, 0};
}

} // namespace torvik
