// SPDX-License-Identifier: MIT
// A job to measure with.
#pragma once

#include <string>

namespace torvik {

struct Job;
class Logger;

// The job of a drawing whose pen 1 is cut 10 mm deep in ten passes, or drilled where it holds
// nothing but circles, with tool 1.
Job jobInTenPasses(std::string drawing, Logger& logger);

} // namespace torvik
