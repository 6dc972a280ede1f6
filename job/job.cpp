// SPDX-License-Identifier: MIT
#include "job/job.h"

namespace torvik {

void ClearData(Job& job) {
    job.drawing = {};
    job.answers = {};
    job.position = {};
    job.output = {};
}

} // namespace torvik
