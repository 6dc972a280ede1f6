// SPDX-License-Identifier: MIT
// Pens, circles and order after an import: which pens are used, which hold nothing but circles,
// which circle sizes there are, and in which order pens are machined.
#pragma once

#include <cstdint>

namespace torvik {

struct Answers;
struct Job;
struct Path;
class Logger;

// Sets the colours and names of the eight pens and the words of gstrOrdinal.
void SetColourDefinitions(Job& job);

// Finds the used pens, their circles and circle sizes, and makes one settings group for each pen
// and each of its sizes. False after a trapped error: a path with a pen outside 1 to 8, or more
// than 32767 groups; the job then stays as far as it got.
bool SetUpPens(Job& job, Logger& logger);

// Finds whether the pen, 1 to 8, holds closed circles only, and its distinct radii.
// False after a trapped error.
bool CheckForCircles(Job& job, std::int16_t intPen, Logger& logger);

// Rebuilds gintOrder and gintOrderCount from the pens that are machined, in pen order.
void rebuildOrder(Job& job);

// Whether the pen, 1 to 8, is used and not left out.
bool isMachined(const Answers& answers, std::int16_t pen);

// Whether the path is an arc whose end lies at its start (within 0.5 mm).
bool isClosedCircle(const Path& path);

} // namespace torvik
