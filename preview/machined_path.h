// SPDX-License-Identifier: MIT
// What machines the paths of a drawing: each work on a path with its depth and its tool's width,
// and the order in which works are drawn. Lengths are mm.
#pragma once

#include "job/records.h"

#include <vector>

namespace torvik {

struct Answers;
struct Drawing;
struct ToolList;

struct Work {
    float sngDepth;
    float sngDiameter; // of the tool
    bool blnHole;      // drilled at the path's centre, else cut along its line
};

// The works on a path that show on the finished piece, the shallow ones first: one for a pen that
// is cut, none for a pen that is left out. A hole that two sizes claim is drilled twice; what a
// deeper and no narrower drill takes away does not show. Raises SubscriptOutOfRange at a pen
// outside 1 to 8, and InvalidCall where a group has no tool, or where no size of a drilled pen
// claims the path.
std::vector<Work> workOn(const Answers& answers, const ToolList& tools, const Path& path);

struct WorkOnPath {
    Path path; // a copy, which outlives the drawing
    Work work;
};

// All works on the drawing, ascending by depth, so that shallow work is drawn first; those of one
// depth in file order. Raises what workOn does.
std::vector<WorkOnPath> worksByDepth(const Drawing& drawing, const Answers& answers,
                                     const ToolList& tools);

} // namespace torvik
