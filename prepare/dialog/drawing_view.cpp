// SPDX-License-Identifier: MIT
#include "prepare/dialog/drawing_view.h"

#include "forms/spoken_role.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

constexpr int overlap = 120;        // pixels that the image is larger than the view, each side
constexpr double zoomStep = 1.25;   // of a notch of the wheel, or of a key
constexpr double arrowStep = 40;    // pixels
constexpr double leastScale = 1e-3; // pixels for each mm
constexpr double mostScale = 1e4;

} // namespace

DrawingView::DrawingView(QWidget* parent) : QFrame(parent) {
    setFrameShape(QFrame::StyledPanel);
    setFocusPolicy(Qt::StrongFocus);
    setSpokenRole(*this, QAccessible::Canvas);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void DrawingView::setPicture(std::shared_ptr<const StrokePicture> picture) {
    if (picture == m_picture)
        return;
    m_picture = std::move(picture);
    setCursor(m_picture ? Qt::OpenHandCursor : Qt::ArrowCursor);
    if (!m_picture)
        m_painted = {}; // else it stays until the new one is painted
    paintSoon();
}

void DrawingView::setHint(const QString& hint) {
    m_hint = hint;
    update();
}

void DrawingView::setPlace(const ViewPlace& place) {
    if (place == m_place)
        return;
    m_place = place;
    paintSoon();
}

QSize DrawingView::paintedSize() const {
    return size() + QSize(2 * overlap, 2 * overlap);
}

void DrawingView::paintSoon() {
    update();
    if (!m_picture)
        return;
    m_work.start([this, picture = m_picture, place = m_place, size = paintedSize(),
                  ratio = devicePixelRatioF()](const std::stop_token& stop) {
        QImage image = paintPicture(*picture, place, size, ratio, stop);
        QMetaObject::invokeMethod(
            this,
            [this, painted = Painted{std::move(image), place, picture, size}] {
                if (painted.picture != m_picture)
                    return;
                m_painted = painted;
                update();
            },
            Qt::QueuedConnection);
    });
}

void DrawingView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window()); // what the frame leaves free
    painter.fillRect(contentsRect(), Qt::white);
    if (m_picture) {
        drawPainted(painter);
    } else if (!m_hint.isEmpty()) {
        QFont large = font();
        large.setPointSizeF(large.pointSizeF() * 1.2);
        painter.setFont(large);
        painter.setPen(QColor(0x60, 0x60, 0x60));
        painter.drawText(contentsRect().adjusted(12, 12, -12, -12),
                         Qt::AlignCenter | Qt::TextWordWrap, m_hint);
    }
    drawFrame(&painter);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}

void DrawingView::drawPainted(QPainter& painter) const {
    if (m_painted.image.isNull())
        return;
    const double stretch = m_place.scale / m_painted.place.scale;
    const QSizeF shown = QSizeF(m_painted.size) * stretch;
    const QPointF middle = m_place.transform(size()).map(m_painted.place.centre);
    QPointF corner = middle - QPointF(shown.width(), shown.height()) / 2;
    painter.setClipRect(contentsRect());
    if (stretch == 1) {
        const double ratio = devicePixelRatioF(); // on whole pixels of the screen it stays sharp
        corner = QPointF((corner * ratio).toPoint()) / ratio;
        painter.drawImage(corner, m_painted.image);
    } else {
        painter.drawImage(QRectF(corner, shown), m_painted.image);
    }
    painter.setClipping(false);
}

void DrawingView::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    paintSoon();
}

// Keeps a corner of the drawing near the middle, so that it is never lost.
void DrawingView::moveTo(const ViewPlace& place) {
    if (!m_picture)
        return;
    ViewPlace held = place;
    const QRectF& bounds = m_picture->bounds;
    held.centre.setX(std::clamp(place.centre.x(), bounds.left(), bounds.right()));
    held.centre.setY(std::clamp(place.centre.y(), bounds.top(), bounds.bottom()));
    if (held == m_place)
        return;
    setPlace(held);
    emit placeChanged(m_place);
}

void DrawingView::moveBy(const QPointF& pixels) {
    const QPointF mm = QPointF(pixels.x(), -pixels.y()) / m_place.scale;
    moveTo({m_place.scale, m_place.centre - mm});
}

void DrawingView::zoomBy(double factor, const QPointF& about) {
    const double scale = std::clamp(m_place.scale * factor, leastScale, mostScale);
    const QPointF held = m_place.transform(size()).inverted().map(about);
    // The point under the mouse stays there.
    moveTo({scale, held + (m_place.centre - held) * (m_place.scale / scale)});
}

void DrawingView::wheelEvent(QWheelEvent* event) {
    constexpr double notch = 120;
    zoomBy(std::pow(zoomStep, event->angleDelta().y() / notch), event->position());
    event->accept();
}

void DrawingView::mousePressEvent(QMouseEvent* event) {
    if (!m_picture || (event->button() != Qt::LeftButton && event->button() != Qt::MiddleButton))
        return;
    m_dragging = true;
    m_grip = event->position();
    setCursor(Qt::ClosedHandCursor);
}

void DrawingView::mouseMoveEvent(QMouseEvent* event) {
    if (!m_dragging)
        return;
    moveBy(event->position() - m_grip);
    m_grip = event->position();
}

void DrawingView::mouseReleaseEvent(QMouseEvent*) {
    m_dragging = false;
    setCursor(m_picture ? Qt::OpenHandCursor : Qt::ArrowCursor);
}

void DrawingView::mouseDoubleClickEvent(QMouseEvent*) {
    emit fitWanted();
}

void DrawingView::keyPressEvent(QKeyEvent* event) {
    const QPointF middle = rect().toRectF().center();
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // plus without the shift key
        zoomBy(zoomStep, middle);
        break;
    case Qt::Key_Minus:
        zoomBy(1 / zoomStep, middle);
        break;
    case Qt::Key_0:
        emit fitWanted();
        break;
    case Qt::Key_Left:
        moveBy({arrowStep, 0});
        break;
    case Qt::Key_Right:
        moveBy({-arrowStep, 0});
        break;
    case Qt::Key_Up:
        moveBy({0, arrowStep});
        break;
    case Qt::Key_Down:
        moveBy({0, -arrowStep});
        break;
    default:
        QFrame::keyPressEvent(event);
    }
}

} // namespace torvik
