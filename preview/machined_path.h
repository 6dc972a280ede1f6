// SPDX-License-Identifier: MIT
// What machines a path: its settings group and that group's tool. Lengths are mm.
#pragma once

namespace torvik {

struct Job;
struct Path;
struct Settings;
struct ToolList;
class Logger;

// A path of a pen that is not left out, as it will be machined.
struct MachinedPath {
    float sngDepth;
    float sngDiameter; // of the tool
    bool blnHole;      // drilled at its centre, else cut along its line
};

// The path's settings group: its pen's own, or that of its circle size where the pen is drilled.
// Raises SubscriptOutOfRange at a pen outside 1 to 8, and InvalidCall where the pen has no circle
// size within 0.01 mm of the path's radius.
const Settings& settingsOf(const Job& job, const Path& path);

// Raises what settingsOf does, and InvalidCall, naming the group, where it has no tool.
MachinedPath machinedPath(const Job& job, const ToolList& tools, const Path& path);

// Makes the depth of its group each path's sngSortKey and orders the paths by it, so that shallow
// work is drawn first. False after a trapped error of the ordering. Raises what settingsOf does.
bool sortPathsByDepth(Job& job, Logger& logger);

} // namespace torvik
