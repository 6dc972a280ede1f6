// SPDX-License-Identifier: MIT
#pragma once

namespace torvik {

// Pixels, in height and width, of what is clicked: an unsteady hand hits it.
inline constexpr int leastTarget = 24;

} // namespace torvik
