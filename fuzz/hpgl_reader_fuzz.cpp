// SPDX-License-Identifier: MIT
// Any bytes as a drawing: it is refused, or every later step finds a job that hangs together.
// Inputs above 64 KB only repeat what smaller ones do, and are left out.
#include "base/errors.h"
#include "base/logger.h"
#include "fuzz/invariant.h"
#include "job/colour_tree.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "job/pens.h"
#include "job/sort_paths.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

namespace torvik {
namespace {

constexpr std::size_t largestInput = std::size_t{64} << 10;

void checkPath(const Path& path) {
    holds(path.intPen >= 1 && path.intPen <= penCount, "a path has a pen from 1 to 8");
    holds(path.intType >= straightLine && path.intType <= arcClockwise, "a path has a known type");
    for (const float field :
         {path.sngStartX, path.sngStartY, path.sngEndX, path.sngEndY, path.sngCentreX,
          path.sngCentreY, path.sngAngleFrom, path.sngAngleTo, path.sngRadius})
        holds(std::isfinite(field), "every field of a path is finite");
    holds(path.sngRadius >= 0, "no radius is negative");
    holds(path.intType != straightLine || path.sngRadius == 0, "a line has no radius");
}

void checkPens(const Job& job) {
    long groups = 0;
    std::int16_t used = 0;
    for (const Pen& pen : job.answers.gudtPens) {
        holds(pen.sngRadii.count() == pen.intRadiusCount, "the radii are counted");
        const auto& radii = pen.sngRadii;
        holds(std::adjacent_find(radii.begin(), radii.end(), std::greater_equal<>()) == radii.end(),
              "the radii ascend");
        if (!pen.blnUsed)
            continue;
        ++used;
        holds(pen.intSettings > groups, "a pen's groups lie behind those of the pens before");
        holds(pen.blnCircles == (pen.intRadiusCount > 0),
              "a pen of circles has sizes, no other has");
        groups = pen.intSettings + pen.intRadiusCount;
    }
    holds(used == job.answers.gintPenCount, "the used pens are counted");
    holds(job.answers.gudtSettings.count() == job.answers.gintSettingsCount,
          "the groups are counted");
    holds(groups <= job.answers.gintSettingsCount, "every pen and size has a group");
    holds(job.position.gudtColourTree.size() == static_cast<std::size_t>(used),
          "a node for each used pen");
}

void checkOrder(const Drawing& drawing) {
    std::vector<float> keys;
    for (const Path& path : drawing.gudtPaths)
        keys.push_back(path.sngRadius);
    std::vector<std::size_t> order = SortPaths(keys);
    holds(std::is_sorted(order.begin(), order.end(),
                         [&](std::size_t a, std::size_t b) {
                             return keys[a] < keys[b] || (keys[a] == keys[b] && a < b);
                         }),
          "paths ascend by key, and by place where keys are equal");
    std::sort(order.begin(), order.end());
    for (std::size_t i = 0; i < order.size(); ++i)
        holds(order[i] == i, "every path stands once in the order");
    holds(order.size() == keys.size(), "no path is left out");
}

void read(std::string bytes) {
    Job job;
    Logger logger;
    try {
        readInstructions(job.drawing, std::move(bytes), "drawing", logger);
    } catch (const FileError& error) {
        holds(error.line() > 0, "a refusal names the line");
        return;
    }
    holds(job.drawing.gudtPaths.count() == job.drawing.gintPathCount, "the paths are counted");
    for (const Path& path : job.drawing.gudtPaths)
        checkPath(path);
    holds(SetUpPens(job, logger), "the pens of a read drawing can be set up");
    CreateTree(job.answers, job.position, logger);
    checkPens(job);
    checkOrder(job.drawing);
}

} // namespace
} // namespace torvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size <= torvik::largestInput)
        torvik::read({data, data + size});
    return 0;
}
