// SPDX-License-Identifier: MIT
#include "wizard/pen_position.h"

#include "base/numbers.h"
#include "base/picture.h"
#include "job/colour_tree.h"
#include "job/pens.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace torvik {
namespace {

// The hole size that follows within a drilled pen, 0 where the pen is done with.
int nextRadius(const Pen& pen, int radius, int direction) {
    if (direction > 0)
        return radius < pen.intRadiusCount ? radius + 1 : 0;
    if (direction < 0)
        return radius > 1 ? radius - 1 : 0;
    return radius;
}

// The next used pen in that direction; 0 or 9 where there is none.
std::int16_t nextUsedPen(const Job& job, std::int16_t pen, int direction) {
    const int step = direction > 0 ? 1 : -1;
    int next = pen + step;
    while (next >= 1 && next <= penCount && !job.gudtPens[next].blnUsed)
        next += step;
    return static_cast<std::int16_t>(next);
}

ColourNode* findNode(Job& job, const std::string& key) {
    auto& tree = job.gudtColourTree;
    const auto at = std::find_if(tree.begin(), tree.end(),
                                 [&](const ColourNode& node) { return node.key == key; });
    return at == tree.end() ? nullptr : &*at;
}

} // namespace

PenMove movePosition(Job& job, int direction) {
    int radius = 0;
    if (job.gintCurrentPen > 0 && currentPen(job).blnDrill)
        radius = nextRadius(currentPen(job), job.gintCurrentRadius, direction);
    if (radius == 0 && direction != 0) {
        const std::int16_t pen = nextUsedPen(job, job.gintCurrentPen, direction);
        if (pen > penCount) {
            job.gintLastPen = job.gintCurrentPen;
            job.gintCurrentRadius = 0;
            return PenMove::behindLast;
        }
        job.gintCurrentPen = std::max<std::int16_t>(pen, 0);
        if (pen < 1) {
            job.gintCurrentRadius = 0;
            return PenMove::beforeFirst;
        }
    }
    job.gintCurrentRadius = static_cast<std::int16_t>(radius);
    job.gintCurrentSettings = static_cast<std::int16_t>(currentPen(job).intSettings + radius);
    return PenMove::onPage;
}

Pen& currentPen(Job& job) {
    return job.gudtPens[job.gintCurrentPen];
}

const Pen& currentPen(const Job& job) {
    return job.gudtPens[job.gintCurrentPen];
}

Settings& currentSettings(Job& job) {
    return job.gudtSettings[job.gintCurrentSettings];
}

PenForm currentForm(const Job& job) {
    return currentPen(job).blnDrill ? PenForm::drilling : PenForm::cutting;
}

bool isOwnPageOfDrilledPen(const Job& job) {
    const Pen& pen = currentPen(job);
    return pen.blnDrill && !pen.blnOmit && job.gintCurrentRadius == 0;
}

std::string strToolTitle(const Job& job) {
    const Pen& pen = currentPen(job);
    if (!pen.blnDrill)
        return pen.strColour + " lines";
    if (job.gintCurrentRadius == 0)
        return pen.strColour + " holes";
    return formatFixed(holeDiameter(job), 1) + " mm diam. holes";
}

float holeDiameter(const Job& job) {
    return 2 * currentPen(job).sngRadii[job.gintCurrentRadius];
}

bool toolMissesHole(const Job& job, float toolDiameter) {
    if (!currentPen(job).blnDrill || job.gintCurrentRadius == 0)
        return false;
    // 6.01 and 6.00 are 0.01 apart, though their singles are a little more.
    const double hole = holeDiameter(job);
    const double rounding =
        std::max<double>(toolDiameter, hole) * std::numeric_limits<float>::epsilon();
    return std::fabs(toolDiameter - hole) > 0.01 + rounding;
}

int machinedPens(const Job& job) {
    int count = 0;
    for (std::int16_t pen = 1; pen <= penCount; ++pen)
        count += isMachined(job, pen) ? 1 : 0;
    return count;
}

std::vector<std::int16_t> blinkPaths(const Job& job) {
    const Pen& pen = currentPen(job);
    const bool oneSize = pen.blnDrill && job.gintCurrentRadius > 0;
    const float radius = oneSize ? pen.sngRadii[job.gintCurrentRadius] : 0;
    std::vector<std::int16_t> paths;
    for (int i = 1; i <= job.gintPathCount; ++i) {
        const Path& path = job.gudtPaths[i];
        if (path.intPen == job.gintCurrentPen &&
            (!oneSize || singleDistance(path.sngRadius, radius) <= radiusTolerance))
            paths.push_back(static_cast<std::int16_t>(i));
    }
    return paths;
}

void markNoNode(Job& job) {
    for (ColourNode& node : job.gudtColourTree) {
        node.bold = false;
        for (ColourNode& hole : node.children)
            hole.bold = false;
    }
}

void markCurrentNode(Job& job) {
    markNoNode(job);
    const Pen& pen = currentPen(job);
    ColourNode* const node = findNode(job, pen.strColour);
    if (node == nullptr)
        return;
    node->bold = true;
    if (pen.blnDrill && job.gintCurrentRadius > 0)
        node->children.at(static_cast<std::size_t>(job.gintCurrentRadius - 1)).bold = true;
}

void updateCurrentNode(Job& job, bool cutAnswered) {
    const Pen& pen = currentPen(job);
    ColourNode* const node = findNode(job, pen.strColour);
    if (node == nullptr)
        return;
    node->image = cutAnswered ? static_cast<std::int16_t>(imageCut + job.gintCurrentPen)
                              : colourNode(job, job.gintCurrentPen).image;
    node->expanded = pen.blnDrill;
}

} // namespace torvik
