// SPDX-License-Identifier: MIT
#include "check/plan/steps_down.h"

#include <algorithm>

namespace torvik::check {
namespace {

// Heights are kept in single precision, so that many small steps add up as they do on the machine's
// side of the job.
float below(float z, float step) {
    return static_cast<float>(double{z} - step);
}

float stepOf(const Settings& settings) {
    return settings.sngDepthPerPass != 0 ? settings.sngDepthPerPass : settings.sngDepth;
}

} // namespace

std::vector<StepDown> passesOf(const Settings& settings, std::size_t most) {
    std::vector<StepDown> passes;
    const float bottom = -settings.sngDepth;
    const auto rest = static_cast<float>(double{settings.sngFinalPassDepth} - settings.sngDepth);
    const bool hasFinalPass = bottom < rest;
    const float finalFeed =
        settings.sngFeedFinalPass > 0 ? settings.sngFeedFinalPass : settings.sngFeedHorizontal;
    bool isFinal = !hasFinalPass; // the pass that reaches its goal is the last one
    for (float z = 0; z > bottom && passes.size() < most;) {
        const float next = below(z, stepOf(settings));
        if (!(next < z))
            break;
        const float goal = isFinal ? bottom : rest;
        const bool isThere = next <= goal;
        z = isThere ? goal : next;
        passes.push_back({z, isThere && isFinal ? finalFeed : settings.sngFeedHorizontal});
        isFinal = isFinal || isThere;
    }
    return passes;
}

std::vector<StepDown> pecksOf(const Settings& settings, std::size_t most) {
    std::vector<StepDown> pecks;
    const float bottom = -settings.sngDepth;
    for (float z = 0; z > bottom && pecks.size() < most;) {
        const float next = below(z, stepOf(settings));
        if (!(next < z))
            break;
        z = std::max(next, bottom);
        pecks.push_back({z, 0});
    }
    return pecks;
}

} // namespace torvik::check
