// SPDX-License-Identifier: MIT
#include "preview/cut/cut_shades.h"

#include "preview/depths.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

constexpr double darkRim = 0.4;
constexpr int lightest = 208;        // the greys of the depths
constexpr int darkest = 80;          // so that the rim is seen in every one
constexpr std::size_t mostRows = 40; // of the legend: more depths are shown by some of them

float millimetres(std::uint16_t depth) {
    return static_cast<float>(depth) / sweep::depthsPerMm;
}

QRgb greyOf(float depth, float shallowest, float deepest) {
    const float part = deepest > shallowest ? (depth - shallowest) / (deepest - shallowest) : 0;
    const auto grey = static_cast<int>(std::lround(lightest + part * (darkest - lightest)));
    return qRgb(grey, grey, grey);
}

std::int32_t plain(QRgb colour) { // 0x00BBGGRR
    return qRed(colour) | qGreen(colour) << 8 | qBlue(colour) << 16;
}

} // namespace

CutShades::CutShades(const sweep::Field& whole, const sweep::Cuts& cuts, const CutBillet& billet) {
    if (billet.depth > 0)
        m_through = static_cast<std::uint32_t>(
            std::fmin(std::round(billet.depth * sweep::depthsPerMm), 0x10000));
    std::vector<bool> occurs(0x10000);
    for (const std::uint16_t depth : whole.depths)
        occurs[depth] = true;
    for (std::uint32_t depth = 1; depth < occurs.size(); ++depth) {
        if (occurs[depth] && depth >= m_through)
            m_hasThrough = true;
        else if (occurs[depth])
            m_depths.push_back(static_cast<std::uint16_t>(depth));
    }
    fillColours(cuts);
}

// All depths that are seen while the cut grows have their own shade, deepest and darkest the one
// that just goes through.
void CutShades::fillColours(const sweep::Cuts& cuts) {
    if (cuts.empty())
        return;
    const auto [low, high] =
        std::minmax_element(cuts.begin(), cuts.end(), [](const sweep::Cut& a, const sweep::Cut& b) {
            return a.depth < b.depth;
        });
    const auto deepest =
        static_cast<std::uint16_t>(std::min<std::uint32_t>(high->depth, m_through));
    const std::uint16_t shallowest = std::min(low->depth, deepest);
    m_colours.resize(deepest + std::size_t{1});
    for (std::size_t depth = 0; depth < m_colours.size(); ++depth) {
        const float shown = millimetres(std::max(static_cast<std::uint16_t>(depth), shallowest));
        m_colours[depth] = greyOf(shown, millimetres(shallowest), millimetres(deepest));
    }
}

QRgb CutShades::colour(std::uint16_t depth) const {
    if (depth == 0)
        return surface;
    return m_colours[std::min<std::size_t>(depth, m_colours.size() - 1)];
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
