// SPDX-License-Identifier: MIT
// Long work that ends early when nobody wants its result any more.
#pragma once

#include "base/errors.h"

#include <stop_token>

namespace torvik {

// Raises Cancelled where a stop was asked for. Quick enough for every turn of a loop.
inline void endIfStopped(const std::stop_token& stop) {
    if (stop.stop_requested())
        throw Cancelled();
}

} // namespace torvik
