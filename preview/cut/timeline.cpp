// SPDX-License-Identifier: MIT
#include "preview/cut/timeline.h"

#include <algorithm>

namespace torvik {

Timeline::Timeline(const check::Moves& moves, check::Pace pace) {
    pace.toolChange = pace.spindleStart = 0;
    m_ends.reserve(moves.size());
    double now = 0;
    for (const check::MoveTime& time : check::moveTimes(moves, pace))
        m_ends.push_back(now += time.exactStop);
}

Moment Timeline::at(double seconds) const {
    const auto under = std::upper_bound(m_ends.begin(), m_ends.end(), seconds);
    const auto move = static_cast<std::size_t>(under - m_ends.begin());
    if (under == m_ends.end())
        return {move, 0};
    const double begin = start(move);
    return {move, std::clamp((seconds - begin) / (*under - begin), 0.0, 1.0)};
}

double Timeline::start(std::size_t move) const {
    return move == 0 || m_ends.empty() ? 0 : m_ends[std::min(move, m_ends.size()) - 1];
}

} // namespace torvik
