// SPDX-License-Identifier: MIT
// Sweeps cuts into a field. A cell keeps its greatest depth and the first move that reached it; the
// number of threads changes nothing.
#pragma once

#include "sweep/cuts.h"
#include "sweep/field.h"

#include <atomic>
#include <functional>
#include <span>

namespace torvik::sweep {

struct Control {
    int threads = 2;
    const std::atomic<bool>* cancel = nullptr; // set: stop soon
    // Is told what part is done, 0 to 1, by any of the threads, one at a time.
    std::function<void(double)> progress{};

    bool isCancelled() const { return cancel != nullptr && *cancel; }
};

// The cuts stand in the order of the program and follow all that the field holds. False where it
// was cancelled; the field then holds only a part.
bool sweepOn(Field& field, const check::Moves& moves, std::span<const Cut> cuts,
             const Control& control);

// The same for the first part of one cut.
void sweepPart(Field& field, const check::Move& part, const Cut& cut);

// How many rows a cut crosses: what sweeping it costs.
int rowsOf(const Grid& grid, const Cut& cut);

} // namespace torvik::sweep
