// SPDX-License-Identifier: MIT
// Jobs made from the text of a drawing.
#pragma once

#include "base/logger.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "job/pens.h"

#include <string>

namespace torvik {

inline Job readDrawing(std::string text) {
    Job job;
    Logger logger;
    readInstructions(job.drawing, std::move(text), "test.plt", logger);
    return job;
}

inline Job setUpDrawing(std::string text) {
    Job job = readDrawing(std::move(text));
    Logger logger;
    SetUpPens(job, logger);
    return job;
}

} // namespace torvik
