// SPDX-License-Identifier: MIT
// What is still usual: beyond it something is found, whether in a program or in what was asked for.
#pragma once

namespace torvik::check {

inline constexpr double cuttingOut = 3;     // mm that a tool may go into what lies below the billet
inline constexpr double deepestCut = 100;   // mm, where the billet is unknown
inline constexpr double fastestFeed = 6000; // mm/min
inline constexpr double longestWait = 30;   // s

} // namespace torvik::check
