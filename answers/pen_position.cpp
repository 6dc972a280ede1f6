// SPDX-License-Identifier: MIT
#include "answers/pen_position.h"

#include "job/colour_tree.h"
#include "job/hole_sizes.h"
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
    while (next >= 1 && next <= penCount && !job.answers.gudtPens[next].blnUsed)
        next += step;
    return static_cast<std::int16_t>(next);
}

ColourNode* findNode(Job& job, const std::string& key) {
    auto& tree = job.position.gudtColourTree;
    const auto at = std::find_if(tree.begin(), tree.end(),
                                 [&](const ColourNode& node) { return node.key == key; });
    return at == tree.end() ? nullptr : &*at;
}

} // namespace

PenMove movePosition(Job& job, int direction) {
    int radius = 0;
    if (job.position.gintCurrentPen > 0 && currentPen(job).blnDrill)
        radius = nextRadius(currentPen(job), job.position.gintCurrentRadius, direction);
    if (radius == 0 && direction != 0) {
        const std::int16_t pen = nextUsedPen(job, job.position.gintCurrentPen, direction);
        if (pen > penCount) {
            job.position.gintLastPen = job.position.gintCurrentPen;
            job.position.gintCurrentRadius = 0;
            return PenMove::behindLast;
        }
        job.position.gintCurrentPen = std::max<std::int16_t>(pen, 0);
        if (pen < 1) {
            job.position.gintCurrentRadius = 0;
            return PenMove::beforeFirst;
        }
    }
    job.position.gintCurrentRadius = static_cast<std::int16_t>(radius);
    job.position.gintCurrentSettings = settingsOfSize(currentPen(job), radius);
    return PenMove::onPage;
}

Pen& currentPen(Job& job) {
    return job.answers.gudtPens[job.position.gintCurrentPen];
}

const Pen& currentPen(const Job& job) {
    return job.answers.gudtPens[job.position.gintCurrentPen];
}

Settings& currentSettings(Job& job) {
    return job.answers.gudtSettings[job.position.gintCurrentSettings];
}

const Settings& currentSettings(const Job& job) {
    return job.answers.gudtSettings[job.position.gintCurrentSettings];
}

PenForm currentForm(const Job& job) {
    return currentPen(job).blnDrill ? PenForm::drilling : PenForm::cutting;
}

bool isOwnPageOfDrilledPen(const Job& job) {
    const Pen& pen = currentPen(job);
    return pen.blnDrill && !pen.blnOmit && job.position.gintCurrentRadius == 0;
}

bool isHolePage(const Job& job) {
    return currentPen(job).blnDrill && job.position.gintCurrentRadius > 0;
}

PenPlace penPlace(const Job& job) {
    PenPlace place;
    for (std::int16_t pen = 1; pen <= penCount; ++pen) {
        const int used = job.answers.gudtPens[pen].blnUsed ? 1 : 0;
        place.pens += used;
        place.pen += pen <= job.position.gintCurrentPen ? used : 0;
    }
    if (isHolePage(job)) {
        place.size = job.position.gintCurrentRadius;
        place.sizes = currentPen(job).intRadiusCount;
    }
    return place;
}

float holeDiameter(const Job& job) {
    return 2 * currentPen(job).sngRadii[job.position.gintCurrentRadius];
}

bool toolMissesHole(const Job& job, float toolDiameter) {
    if (!isHolePage(job))
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
        count += isMachined(job.answers, pen) ? 1 : 0;
    return count;
}

std::vector<std::int16_t> blinkPaths(const Job& job) {
    const Pen& pen = currentPen(job);
    const bool oneSize = isHolePage(job);
    const float radius = oneSize ? pen.sngRadii[job.position.gintCurrentRadius] : 0;
    std::vector<std::int16_t> paths;
    for (int i = 1; i <= job.drawing.gintPathCount; ++i) {
        const Path& path = job.drawing.gudtPaths[i];
        if (path.intPen == job.position.gintCurrentPen &&
            (!oneSize || isSameSize(path.sngRadius, radius)))
            paths.push_back(static_cast<std::int16_t>(i));
    }
    return paths;
}

void markNoNode(Job& job) {
    for (ColourNode& node : job.position.gudtColourTree) {
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
    if (isHolePage(job))
        node->children.at(static_cast<std::size_t>(job.position.gintCurrentRadius - 1)).bold = true;
}

void updateCurrentNode(Job& job, bool cutAnswered) {
    const Pen& pen = currentPen(job);
    ColourNode* const node = findNode(job, pen.strColour);
    if (node == nullptr)
        return;
    node->image = cutAnswered ? static_cast<std::int16_t>(imageCut + job.position.gintCurrentPen)
                              : colourNode(job.answers, job.position.gintCurrentPen).image;
    node->expanded = pen.blnDrill;
}

} // namespace torvik
