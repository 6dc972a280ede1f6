// SPDX-License-Identifier: MIT
// Which settings groups a program uses, in machining order.
#pragma once

#include "job/hole_sizes.h"
#include "job/job.h"

#include <string>

namespace torvik {

// One stretch of the program: a pen that is cut, or one hole size of a pen that is drilled.
struct MachinedGroup {
    std::int16_t pen;
    std::int16_t radius;   // subscript of the pen's sngRadii, 0 for a cut pen
    std::int16_t settings; // subscript of gudtSettings
};

// Calls visit(MachinedGroup) for the groups of one pen. Raises SubscriptOutOfRange at a pen outside
// 1 to 8.
template <typename Visit>
void visitGroupsOfPen(const Answers& answers, std::int16_t number, Visit& visit) {
    const Pen& pen = answers.gudtPens[number];
    if (!pen.blnDrill) {
        visit(MachinedGroup{number, 0, pen.intSettings});
        return;
    }
    for (std::int16_t k = 1; k <= pen.intRadiusCount; ++k)
        visit(MachinedGroup{number, k, settingsOfSize(pen, k)});
}

// The same for every group of the order; entries of 0 or less hold no pen. Raises
// SubscriptOutOfRange at a pen above 8, after the groups before it.
template <typename Visit>
void visitMachinedGroups(const Job& job, Visit visit) {
    for (const std::int16_t number : job.answers.gintOrder)
        if (number > 0)
            visitGroupsOfPen(job.answers, number, visit);
}

// What a group machines, as the user reads it: "the Red lines", "the 6.0 mm Blue holes".
std::string groupText(const Pen& pen, std::int16_t radius);

} // namespace torvik
