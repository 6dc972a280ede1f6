// SPDX-License-Identifier: MIT
#include "bench/ten_passes.h"

#include "base/logger.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "job/pens.h"

#include <utility>

namespace torvik {

Job jobInTenPasses(std::string drawing, Logger& logger) {
    Job job;
    readInstructions(job.drawing, std::move(drawing), "drawing", logger);
    SetUpPens(job, logger);
    job.answers.gudtPens[1].blnDrill = job.answers.gudtPens[1].blnCircles;
    for (Settings& settings : job.answers.gudtSettings) {
        settings.intTool = 1;
        settings.sngFeedHorizontal = 600;
        settings.sngFeedVertical = 150;
        settings.sngDepth = 10;
        settings.sngDepthPerPass = 1;
    }
    rebuildOrder(job);
    return job;
}

} // namespace torvik
