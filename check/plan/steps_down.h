// SPDX-License-Identifier: MIT
// The heights, one below the other, at which a group is cut or to which a hole is pecked. mm,
// mm/min.
#pragma once

#include "job/records.h"

#include <cstddef>
#include <vector>

namespace torvik::check {

struct StepDown {
    double z = 0;
    double feed = 0; // across; 0 for a peck
};

// The passes of a cut pen: equal steps to where the final pass begins, then the final pass. A step
// that leads nowhere ends them, and so does `most`.
std::vector<StepDown> passesOf(const Settings& settings, std::size_t most);

// The pecks of a hole; without a peck distance one to the bottom.
std::vector<StepDown> pecksOf(const Settings& settings, std::size_t most);

} // namespace torvik::check
