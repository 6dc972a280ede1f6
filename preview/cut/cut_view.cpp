// SPDX-License-Identifier: MIT
#include "preview/cut/cut_view.h"

#include <algorithm>

namespace torvik {
namespace {

constexpr double viewMargin = 36; // pixels round the whole, for its sizes

} // namespace

void CutView::setSize(QSizeF size) {
    m_size = size;
    keepInSight();
}

void CutView::setWhole(const QRectF& whole) {
    m_whole = whole;
    showWhole();
}

double CutView::scale() const {
    const auto fitted = [](double pixels, double length) {
        return std::max(pixels - 2 * viewMargin, 16.0) / std::max(length, 1e-3);
    };
    return m_ratio * m_zoom *
           std::min(fitted(m_size.width(), m_whole.width()),
                    fitted(m_size.height(), m_whole.height()));
}

QPointF CutView::toPixels(QPointF place) const {
    const QPointF way = (place - m_centre) * scale();
    const QSizeF half = m_size * m_ratio / 2;
    return {half.width() + way.x(), half.height() - way.y()};
}

QPointF CutView::toPlace(QPointF pixel) const {
    const QPointF way = (pixel - QPointF(m_size.width(), m_size.height()) * m_ratio / 2) / scale();
    return m_centre + QPointF(way.x(), -way.y());
}

void CutView::zoomAbout(QPointF pixel, double factor) {
    const QPointF place = toPlace(pixel);
    m_zoom = std::clamp(m_zoom * factor, 1.0, mostZoom);
    m_centre += place - toPlace(pixel);
    keepInSight();
}

void CutView::zoomAbout(double factor) {
    zoomAbout({m_size.width() / 2, m_size.height() / 2}, factor);
}

void CutView::moveBy(QPointF pixels) {
    m_centre += QPointF(-pixels.x(), pixels.y()) / scale();
    keepInSight();
}

void CutView::showWhole() {
    m_zoom = 1;
    m_centre = m_whole.center();
}

void CutView::bringIntoSight(QPointF place) {
    const QPointF at = toPixels(place);
    const auto beyond = [](double pixel, double size) {
        return pixel < viewMargin          ? viewMargin - pixel
               : pixel > size - viewMargin ? size - viewMargin - pixel
                                           : 0;
    };
    if (m_zoom > 1)
        moveBy({beyond(at.x(), m_size.width()), beyond(at.y(), m_size.height())});
}

// The middle of the picture stays on the piece.
void CutView::keepInSight() {
    if (m_zoom == 1)
        m_centre = m_whole.center();
    m_centre = {std::clamp(m_centre.x(), m_whole.left(), m_whole.right()),
                std::clamp(m_centre.y(), m_whole.top(), m_whole.bottom())};
}

} // namespace torvik
