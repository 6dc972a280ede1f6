// SPDX-License-Identifier: MIT
// Where the pen pages stand in the job: the next page, what it is about, which paths blink on it,
// and how the colour tree shows all this. The position is the job's gintCurrentPen,
// gintCurrentRadius (0 for the pen as a whole) and gintCurrentSettings.
#pragma once

#include "answers/pen_rows.h"
#include "job/job.h"

#include <cstdint>
#include <vector>

namespace torvik {

enum class PenMove { onPage, beforeFirst, behindLast };

// Moves the position to the next page (1), to the previous one (-1) or not at all (0): hole by hole
// within a drilled pen, and to the own page of the next used pen. Beyond the last used pen the
// position stays with it and gintLastPen remembers it; before the first it becomes 0.
PenMove movePosition(Job& job, int direction);

// The pen and the group on show. Raise SubscriptOutOfRange where no page is on show.
Pen& currentPen(Job& job);
const Pen& currentPen(const Job& job);
Settings& currentSettings(Job& job);
const Settings& currentSettings(const Job& job);

PenForm currentForm(const Job& job);
// The page about a drilled pen as a whole: nothing is asked for there.
bool isOwnPageOfDrilledPen(const Job& job);

// The page about one hole size of a drilled pen.
bool isHolePage(const Job& job);

// How far the pages have come: the page's place among the used pens, and that of its hole size
// within the pen (0 of 0 on any other page).
struct PenPlace {
    int pen = 0;
    int pens = 0;
    int size = 0;
    int sizes = 0;

    bool operator==(const PenPlace&) const = default;
};
PenPlace penPlace(const Job& job);

// Whether a tool's diameter differs from the current hole's by more than 0.01 mm; False where the
// page is about no hole.
bool toolMissesHole(const Job& job, float toolDiameter);
// The current hole's diameter, mm.
float holeDiameter(const Job& job);

// How many of the used pens are machined.
int machinedPens(const Job& job);

// The paths that blink on the page, ascending: those of the pen, or those of the hole size.
std::vector<std::int16_t> blinkPaths(const Job& job);

// The node of the page's pen, and that of its hole size, becomes bold and every other not.
void markCurrentNode(Job& job);
void markNoNode(Job& job);
// Gives the current pen's node the picture of its present choice and opens it where the pen is
// drilled. `cutAnswered`: circles that the user just chose to cut show the picture of a cut pen.
void updateCurrentNode(Job& job, bool cutAnswered);

} // namespace torvik
