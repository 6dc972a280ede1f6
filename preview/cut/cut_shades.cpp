// SPDX-License-Identifier: MIT
#include "preview/cut/cut_shades.h"

#include "forms/colour.h"
#include "preview/depths.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

constexpr double darkRim = 0.4;
constexpr std::size_t mostRows = 40; // of the legend: more depths are shown by some of them

float millimetres(std::uint16_t depth) {
    return static_cast<float>(depth) / sweep::depthsPerMm;
}

std::int32_t plain(QRgb colour) { // 0x00BBGGRR
    return qRed(colour) | qGreen(colour) << 8 | qBlue(colour) << 16;
}

} // namespace

CutShades::CutShades(const sweep::Field& whole, const CutBillet& billet) {
    if (billet.depth > 0)
        m_through = static_cast<std::uint32_t>(
            std::fmin(std::round(billet.depth * sweep::depthsPerMm), 0x10000));
    std::vector<bool> occurs(0x10000);
    for (const std::uint16_t depth : whole.depths)
        occurs[depth] = true;
    for (std::size_t depth = 1; depth < occurs.size(); ++depth) {
        if (!occurs[depth])
            continue;
        if (isThrough(static_cast<std::uint16_t>(depth)))
            m_hasThrough = true;
        else
            m_depths.push_back(static_cast<std::uint16_t>(depth));
    }
    if (m_depths.empty())
        return;
    m_deepest = m_depths.back();
    // While the cut grows there are depths between, too.
    m_colours.resize(m_deepest + std::size_t{1});
    for (std::size_t depth = 0; depth < m_colours.size(); ++depth) {
        const auto within =
            std::clamp(static_cast<std::uint16_t>(depth), m_depths.front(), m_deepest);
        m_colours[depth] =
            colourOf(lngPlotColour(millimetres(within), millimetres(m_depths.front()),
                                   millimetres(m_deepest)))
                .rgb();
    }
}

QRgb CutShades::colour(std::uint16_t depth) const {
    if (depth == 0)
        return surface;
    if (m_colours.empty())
        return 0xFFC0C0C0;
    return m_colours[std::min(depth, m_deepest)];
}

QRgb CutShades::rim(std::uint16_t depth) const {
    const QRgb inside = isThrough(depth) ? hatch : colour(depth);
    const auto darker = [](int part) { return static_cast<int>(part * darkRim); };
    return qRgb(darker(qRed(inside)), darker(qGreen(inside)), darker(qBlue(inside)));
}

std::vector<Legend::Row> CutShades::legend() const {
    std::vector<Legend::Row> rows;
    const std::size_t step = (m_depths.size() + mostRows - 1) / mostRows;
    for (std::size_t i = 0; i < m_depths.size(); i += step)
        rows.push_back({plain(colour(m_depths[i])),
                        QString::fromStdString(depthText(millimetres(m_depths[i])))});
    if (m_hasThrough)
        rows.push_back(
            {plain(hatch), QCoreApplication::translate("FrmCut", "through"), Qt::BDiagPattern});
    return rows;
}

} // namespace torvik
