// SPDX-License-Identifier: MIT
#include "sweep/growth.h"

#include <algorithm>

namespace torvik::sweep {
namespace {

constexpr std::size_t mostKept = 16;
constexpr long leastWork = 300'000; // rows between two that are kept: about 15 ms
constexpr long workForThreads = 20'000;
constexpr double leastPart = 1e-6; // an arc of no length would be a full circle

Area wholeArea(const Cuts& cuts, const Area& billet) {
    Area area = billet;
    if (const auto reach = areaOf(cuts))
        area.cover(*reach);
    return area;
}

} // namespace

Growth::Growth(const check::Moves& moves, const Diameters& diameters, const Area& billet)
    : m_moves(moves), m_cuts(cutsOf(moves, diameters)),
      m_grid(gridOver(wholeArea(m_cuts, billet))) {}

bool Growth::build(const Control& control) {
    long work = 0;
    for (const Cut& cut : m_cuts)
        work += rowsOf(m_grid, cut);
    const long share = std::max(leastWork, work / static_cast<long>(mostKept));
    m_kept.assign(1, {0, Field(m_grid)});
    Field field(m_grid);
    for (std::size_t first = 0, end = 0; first < m_cuts.size(); first = end) {
        long rows = 0;
        while (end < m_cuts.size() && rows < share)
            rows += rowsOf(m_grid, m_cuts[end++]);
        Control piece = control;
        if (control.progress)
            piece.progress = [&](double part) {
                const double all = static_cast<double>(m_cuts.size());
                control.progress(
                    (static_cast<double>(first) + part * static_cast<double>(end - first)) / all);
            };
        if (!sweepOn(field, m_moves, std::span(m_cuts).subspan(first, end - first), piece))
            return false;
        m_kept.push_back({end, field});
    }
    begin(m_kept.front());
    return true;
}

void Growth::begin(const Kept& kept) {
    m_field = kept.field;
    m_done = kept.cuts;
    m_part = 0;
}

void Growth::sweepTo(std::size_t cuts) {
    const auto next = std::span(m_cuts).subspan(m_done, cuts - m_done);
    long work = 0;
    for (std::size_t i = 0; i < next.size() && work < workForThreads; ++i)
        work += rowsOf(m_grid, next[i]);
    if (next.size() == 1)
        sweepPart(m_field, m_moves[next.front().move], next.front());
    else if (!next.empty())
        sweepOn(m_field, m_moves, next, {work < workForThreads ? 1 : 2});
    m_done = cuts;
}

void Growth::show(std::size_t moves, double fraction) {
    const auto isBefore = [](const Cut& cut, std::size_t move) { return cut.move < move; };
    const auto next = std::lower_bound(m_cuts.begin(), m_cuts.end(), moves, isBefore);
    const auto cuts = static_cast<std::size_t>(next - m_cuts.begin());
    const bool isCut = next != m_cuts.end() && next->move == moves;
    const double part = isCut && fraction > leastPart ? fraction : 0;
    const auto behind =
        std::upper_bound(m_kept.begin(), m_kept.end(), cuts,
                         [](std::size_t count, const Kept& kept) { return count < kept.cuts; });
    const Kept& kept = *(behind - 1);
    if (cuts < m_done || (cuts == m_done && part < m_part) || kept.cuts > m_done)
        begin(kept);
    if (cuts > m_done) {
        sweepTo(cuts);
        m_part = 0;
    }
    if (part > m_part) {
        sweepPart(m_field, partOf(m_moves[moves], part), *next);
        m_part = part;
    }
}

} // namespace torvik::sweep
