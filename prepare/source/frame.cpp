// SPDX-License-Identifier: MIT
#include "prepare/source/frame.h"

#include "prepare/arcs.h"

#include <algorithm>

namespace torvik {

namespace {

// The corners of a plotter for A4 paper, the commonest of all.
constexpr Point usualLow{603, 521};
constexpr Point usualHigh{10603, 7721};

} // namespace

bool Frame::setScale(std::span<const double> numbers) {
    if (numbers.empty()) {
        unscale();
        return true;
    }
    if (numbers.size() < 4)
        return false;
    const double kind = numbers.size() > 4 ? numbers[4] : 0;
    Scale scale;
    scale.from = {numbers[0], numbers[2]};
    scale.to = {numbers[1], numbers[3]};
    if (kind == 1) {
        scale.fit = Fit::isotropic;
        if (numbers.size() > 6)
            scale.leftOver = {numbers[5], numbers[6]};
    } else if (kind == 2) {
        scale.fit = Fit::factors;
    } else if (kind != 0) {
        return false;
    }
    const Point span = scale.fit == Fit::factors ? scale.to : scale.to - scale.from;
    const Point corners = m_high - m_low;
    if (span.x == 0 || span.y == 0 || corners.x == 0 || corners.y == 0)
        return false;
    m_guessedCorners = m_guessedCorners || !(m_ownCorners || m_ownPage);
    m_scale = scale;
    update();
    return true;
}

bool Frame::setCorners(std::span<const double> numbers) {
    return moveCorners(numbers, {1, 1});
}

bool Frame::setCornersInHundredths(std::span<const double> numbers) {
    return moveCorners(numbers, page() * 0.01);
}

bool Frame::moveCorners(std::span<const double> numbers, Point unit) {
    if (numbers.empty()) {
        setDefaultCorners();
        update();
        return true;
    }
    if (numbers.size() != 2 && numbers.size() < 4)
        return false;
    const Point low{numbers[0] * unit.x, numbers[1] * unit.y};
    Point high = m_high - m_low + low; // P2 follows P1
    if (numbers.size() >= 4)
        high = {numbers[2] * unit.x, numbers[3] * unit.y};
    if (high.x == low.x || high.y == low.y)
        return false;
    m_low = low;
    m_high = high;
    m_ownCorners = true;
    update();
    return true;
}

bool Frame::setRotation(double degrees) {
    if (std::fmod(degrees, 90) != 0)
        return false;
    m_quarters = static_cast<int>(std::fmod(degrees / 90, 4) + 4) % 4;
    update();
    return true;
}

bool Frame::setPage(std::span<const double> numbers) {
    if (numbers.empty() || numbers[0] <= 0)
        return false;
    const double width = numbers.size() > 1 && numbers[1] > 0 ? numbers[1] : m_pageSize.y;
    m_pageSize = {numbers[0], width};
    m_ownPage = true;
    if (!m_ownCorners)
        setDefaultCorners();
    update();
    return true;
}

void Frame::unscale() {
    m_scale.reset();
    update();
}

Point Frame::page() const {
    return m_quarters % 2 == 0 ? m_pageSize : Point{m_pageSize.y, m_pageSize.x};
}

void Frame::setDefaultCorners() {
    m_low = m_ownPage ? Point{} : usualLow;
    m_high = m_ownPage ? page() : usualHigh;
    m_ownCorners = false;
}

void Frame::update() {
    m_scaleX = 1;
    m_scaleY = 1;
    m_shift = {};
    if (m_scale)
        updateScale(*m_scale);
}

void Frame::updateScale(const Scale& scale) {
    const Point corners = m_high - m_low;
    const Point span = scale.to - scale.from;
    Point free;
    switch (scale.fit) {
    case Fit::factors:
        m_scaleX = scale.to.x;
        m_scaleY = scale.to.y;
        break;
    case Fit::isotropic: {
        const double factor =
            std::min(std::fabs(corners.x / span.x), std::fabs(corners.y / span.y));
        m_scaleX = std::copysign(factor, corners.x / span.x);
        m_scaleY = std::copysign(factor, corners.y / span.y);
        free = {(corners.x - m_scaleX * span.x) * scale.leftOver.x / 100,
                (corners.y - m_scaleY * span.y) * scale.leftOver.y / 100};
        break;
    }
    case Fit::stretched:
        m_scaleX = corners.x / span.x;
        m_scaleY = corners.y / span.y;
        break;
    }
    m_shift = m_low + free - Point{scale.from.x * m_scaleX, scale.from.y * m_scaleY};
}

Point Frame::pageVector(Point vector) const {
    return m_quarters == 0 ? vector : rotated(vector, 90.0 * m_quarters);
}

Point Frame::vectorToPlotter(Point user) const {
    return pageVector({user.x * m_scaleX, user.y * m_scaleY});
}

Point Frame::toTurnedPage(Point user) const {
    // The page turns about its corner, which then stands at another corner of the paper.
    static constexpr Point shifts[] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    const Point shift = shifts[m_quarters];
    const Point turned = pageVector({user.x * m_scaleX + m_shift.x, user.y * m_scaleY + m_shift.y});
    return {turned.x + shift.x * m_pageSize.x, turned.y + shift.y * m_pageSize.y};
}

Point Frame::toUser(Point plotter) const {
    const Point origin = toPlotter({});
    const Point straight = rotated(plotter - origin, -90.0 * m_quarters);
    return {straight.x / m_scaleX, straight.y / m_scaleY};
}

bool Frame::keepsCircles() const {
    return std::fabs(std::fabs(m_scaleX) - std::fabs(m_scaleY)) <= 1e-9 * std::fabs(m_scaleX);
}

} // namespace torvik
