// SPDX-License-Identifier: MIT
// The whole road: strokes of a source become a drawing that the job's own reader reads completely.
// Lengths in the options are mm. Refuses a drawing with nothing to draw, with pens above 8, with
// more elements than a job takes, and one that is not read back as it was meant.
#pragma once

#include "prepare/beside/beside.h"
#include "prepare/fitting/fit.h"
#include "prepare/placing/place.h"
#include "prepare/source/hpgl_source.h"

#include <map>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace torvik {

struct PrepareOptions {
    double tolerance = 0.01;
    double roundTurn = 24; // degrees
    bool arcs = true;      // chords may become arcs and circles
    bool optimize = false; // a short way between strokes
    bool dropDuplicates = false;
    std::optional<double> dots; // the diameter of dots
    double scale = 1;
    Mirror mirror = Mirror::none;
    int rotation = 0;            // 0, 90, 180, 270 degrees
    std::optional<Point> origin; // where the lower left corner comes to
    std::map<int, int> pens;
    RunOptions beside;
    bool keepBefore = false; // for showing both
    std::size_t pointLimit = FitOptions{}.pointLimit;
    std::stop_token stop; // for those who no longer want the result
};

struct PenUse {
    int pen = 1;
    std::string name;
    long lines = 0;
    long arcs = 0;
    long circles = 0;
};

// Lengths in mm.
struct PrepareReport {
    SourceReport source;
    FitReport fit;
    BesideReport beside;
    long dots = 0;
    bool dotsDrawn = false;
    long joined = 0;
    long duplicates = 0;
    std::size_t elementsBefore = 0;
    std::size_t elementsAfter = 0;
    double cutBefore = 0;
    double cutAfter = 0;
    double airBefore = 0;
    double airAfter = 0;
    StrokeExtents extents;
    std::vector<PenUse> pens;
};

struct PreparedDrawing {
    std::vector<Stroke> before;  // placed, pens given, nothing fitted; where asked for
    std::vector<Stroke> leftOut; // what the source shows beside it; where asked for
    std::vector<Stroke> strokes;
    std::string text; // the drawing to be saved
    PrepareReport report;
};

// Raises RunTimeError with the cause, or soon after it is asked to stop.
PreparedDrawing prepareDrawing(SourceDrawing source, const PrepareOptions& options);

// The proposed name: the source's with "-torvik.plt" in place of its extension.
std::string preparedName(std::string_view sourceName);

} // namespace torvik
