// SPDX-License-Identifier: MIT
#include "preview/cut/solid_view.h"

#include "forms/spoken_role.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionFocusRect>
#include <QTimer>
#include <QWheelEvent>

#include <cmath>

namespace torvik {
namespace {

constexpr int restTime = 180;      // ms
constexpr double dragTurn = 0.008; // radians a pixel
constexpr double keyTurn = 0.08;   // radians
constexpr double wheelZoom = 1.0012;
constexpr double keyZoom = 1.2;
constexpr double smoothness = 2; // rays a pixel, each way, when it stands

} // namespace

SolidView::SolidView(QWidget* parent) : QWidget(parent), m_rest(new QTimer(this)) {
    setObjectName(QStringLiteral("picSolid"));
    setSpokenRole(*this, QAccessible::Canvas);
    setAccessibleName(tr("The piece as a solid"));
    setToolTip(tr("Drag or arrow keys: turn. Wheel or + and -: zoom. 0: as at first."));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_rest->setSingleShot(true);
    m_rest->setInterval(restTime);
    connect(m_rest, &QTimer::timeout, this, &SolidView::smoothen);
}

void SolidView::setWork(std::shared_ptr<CutWork> work) {
    if (m_work)
        m_work->disconnect(this);
    m_work = std::move(work);
    if (m_work)
        connect(m_work.get(), &CutWork::ended, this, &SolidView::momentChanged);
    momentChanged();
}

void SolidView::showMoment(bool moment) {
    m_showsMoment = moment;
    momentChanged();
}

void SolidView::momentChanged() {
    m_hasCells = false;
    cameraChanged();
}

void SolidView::cameraChanged() {
    m_isPainted = false;
    m_rest->start();
    update();
}

void SolidView::smoothen() {
    if (!isVisible() || !isReady() || !m_hasCells)
        return;
    paintImage(devicePixelRatioF() * smoothness);
    m_image = m_image.scaled(size() * devicePixelRatioF(), Qt::IgnoreAspectRatio,
                             Qt::SmoothTransformation);
    update();
}

void SolidView::paintImage(double ratio) {
    const QSize wanted = (size() * ratio).expandedTo({1, 1});
    if (m_image.size() != wanted || m_image.format() != QImage::Format_RGB32)
        m_image = QImage(wanted, QImage::Format_RGB32);
    m_camera.background = palette().color(QPalette::Base).rgb();
    paintSolid(m_image, m_cells, m_camera);
    m_isPainted = true;
}

void SolidView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (!isReady()) {
        painter.fillRect(rect(), palette().color(QPalette::Base));
        return;
    }
    if (!m_hasCells) {
        m_cells = SolidCells(m_showsMoment ? m_work->moment() : m_work->whole(), m_work->billet());
        m_hasCells = true;
    }
    if (!m_isPainted)
        paintImage(1);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), m_image);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void SolidView::resizeEvent(QResizeEvent* /*event*/) {
    cameraChanged();
}

void SolidView::mousePressEvent(QMouseEvent* event) {
    m_last = event->position();
}

void SolidView::mouseMoveEvent(QMouseEvent* event) {
    if ((event->buttons() & Qt::LeftButton) == 0)
        return;
    const QPointF way = event->position() - m_last;
    m_last = event->position();
    m_camera.turnBy(-way.x() * dragTurn, way.y() * dragTurn);
    cameraChanged();
}

void SolidView::wheelEvent(QWheelEvent* event) {
    m_camera.zoomBy(std::pow(wheelZoom, event->angleDelta().y()));
    cameraChanged();
    event->accept();
}

void SolidView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Left:
        m_camera.turnBy(keyTurn, 0);
        break;
    case Qt::Key_Right:
        m_camera.turnBy(-keyTurn, 0);
        break;
    case Qt::Key_Up:
        m_camera.turnBy(0, keyTurn);
        break;
    case Qt::Key_Down:
        m_camera.turnBy(0, -keyTurn);
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        m_camera.zoomBy(keyZoom);
        break;
    case Qt::Key_Minus:
        m_camera.zoomBy(1 / keyZoom);
        break;
    case Qt::Key_0:
        m_camera = {};
        break;
    default:
        return QWidget::keyPressEvent(event);
    }
    cameraChanged();
}

void SolidView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        cameraChanged();
    QWidget::changeEvent(event);
}

} // namespace torvik
