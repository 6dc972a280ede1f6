// SPDX-License-Identifier: MIT
#include "preview/cut/cut_canvas.h"

#include "forms/spoken_role.h"
#include "preview/paper.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QProgressBar>
#include <QStyleOptionFocusRect>
#include <QWheelEvent>

#include <cmath>

namespace torvik {
namespace {

constexpr double keyZoom = 1.25;
constexpr double keyStep = 40; // pixels
constexpr double wheelZoom = 1.0015;

} // namespace

CutCanvas::CutCanvas(QWidget* parent)
    : QWidget(parent), m_progress(new QProgressBar(this)), m_nothing(new QLabel(this)) {
    setObjectName(QStringLiteral("picCut"));
    setSpokenRole(*this, QAccessible::Canvas);
    setAccessibleName(tr("The piece as the program cuts it"));
    setToolTip(tr("Wheel or + and -: zoom. Drag or arrow keys: move. 0: all of it. "
                  "Click a cut to find its line in the program."));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setPalette(paper());
    m_progress->setObjectName(QStringLiteral("prgCut"));
    m_progress->setAccessibleName(tr("How much of the piece is ready"));
    m_progress->setRange(0, 100);
    m_progress->hide();
    m_nothing->setObjectName(QStringLiteral("lblNoCut"));
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setWordWrap(true);
    m_nothing->setPalette(quietPaper());
    m_nothing->setAttribute(Qt::WA_TransparentForMouseEvents, true);
}

void CutCanvas::setWork(std::shared_ptr<CutWork> work) {
    if (m_work)
        m_work->disconnect(this);
    m_work = std::move(work);
    m_tool.reset();
    m_chosen.reset();
    m_shades = {};
    emit shadesChanged();
    m_nothing->setText(m_work ? QString()
                              : tr("The piece is shown here when its program has been tried"));
    m_progress->hide();
    if (m_work) {
        connect(m_work.get(), &CutWork::progressed, this, &CutCanvas::showProgress);
        connect(m_work.get(), &CutWork::ended, this, &CutCanvas::workEnded);
        if (m_work->state() == CutWork::State::sweeping) {
            showProgress(m_work->percent());
            m_progress->show();
        } else {
            workEnded();
        }
    }
    momentChanged();
}

void CutCanvas::workEnded() {
    m_progress->hide();
    if (!isReady()) {
        m_nothing->setText(tr("There is not enough memory to show this piece."));
        return;
    }
    m_billet = m_work->billet();
    m_shades = CutShades(m_work->whole(), m_work->cuts(), m_billet);
    const sweep::Grid& grid = m_work->whole().grid;
    m_view.setWhole({grid.lowX, grid.lowY, grid.columns * grid.cell, grid.rows * grid.cell});
    emit shadesChanged();
    momentChanged();
}

void CutCanvas::showProgress(int percent) {
    m_progress->setValue(percent);
}

const sweep::Field& CutCanvas::field() const {
    return m_showsMoment ? m_work->moment() : m_work->whole();
}

void CutCanvas::showMoment(bool moment) {
    m_showsMoment = moment;
    momentChanged();
}

void CutCanvas::momentChanged() {
    m_isStale = true;
    update();
}

void CutCanvas::setTool(std::optional<CutToolPlace> tool) {
    m_tool = tool;
    update();
}

void CutCanvas::chooseMove(std::optional<std::size_t> move) {
    m_chosen = move;
    if (move && isReady()) {
        const check::Place& end = m_work->piece().moves[*move].to;
        if (std::isfinite(end.x) && std::isfinite(end.y) && !m_view.isWhole()) {
            m_view.bringIntoSight({end.x, end.y});
            m_isStale = true;
        }
    }
    update();
}

void CutCanvas::zoom(double factor) {
    m_view.zoomAbout(factor);
    viewChanged();
}

void CutCanvas::showAll() {
    m_view.showWhole();
    viewChanged();
}

void CutCanvas::viewChanged() {
    m_isStale = true;
    update();
}

void CutCanvas::paintField() {
    const double ratio = devicePixelRatioF();
    const QSize size = this->size() * ratio;
    if (m_image.size() != size)
        m_image = QImage(size, QImage::Format_RGB32);
    m_image.setDevicePixelRatio(1);
    CutView inPixels = m_view;
    inPixels.setRatio(ratio);
    m_painter.paint(m_image, field(), m_billet, m_shades, inPixels,
                    std::max(1, static_cast<int>(std::lround(ratio))));
    m_image.setDevicePixelRatio(ratio);
    m_isStale = false;
}

void CutCanvas::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (!isReady()) {
        painter.fillRect(rect(), Qt::white);
        return;
    }
    if (m_isStale)
        paintField();
    painter.drawImage(0, 0, m_image);
    paintOver(painter);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void CutCanvas::paintOver(QPainter& painter) {
    const CutPiece& piece = m_work->piece();
    CutPainting over(painter, m_view);
    if (piece.billet.isKnown())
        over.billet(m_billet);
    over.uncut(piece.uncut);
    if (m_chosen)
        over.move(piece.moves[*m_chosen], piece.radiusOf(piece.toolAt(*m_chosen)));
    over.zeroPoint();
    if (m_tool)
        over.tool(*m_tool);
}

void CutCanvas::resizeEvent(QResizeEvent* /*event*/) {
    m_view.setSize(size());
    m_isStale = true;
    const QSize bar(std::min(width() - 40, 280), m_progress->sizeHint().height());
    m_progress->setGeometry(QRect(rect().center() - QPoint(bar.width(), bar.height()) / 2, bar));
    m_nothing->setGeometry(rect());
}

void CutCanvas::wheelEvent(QWheelEvent* event) {
    m_view.zoomAbout(event->position(), std::pow(wheelZoom, event->angleDelta().y()));
    viewChanged();
    event->accept();
}

void CutCanvas::mousePressEvent(QMouseEvent* event) {
    m_pressed = m_last = event->position();
    m_isDragged = false;
}

void CutCanvas::mouseMoveEvent(QMouseEvent* event) {
    const QPointF at = event->position();
    if ((event->buttons() & (Qt::LeftButton | Qt::MiddleButton)) != 0) {
        if ((at - m_pressed).manhattanLength() >= QApplication::startDragDistance())
            m_isDragged = true;
        if (m_isDragged) {
            m_view.moveBy(at - m_last);
            m_last = at;
            viewChanged();
        }
    }
    emit pointed(textAt(at));
}

void CutCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (m_isDragged || event->button() != Qt::LeftButton)
        return;
    const auto cell = cellAt(event->position());
    if (cell && field().moves[*cell] != sweep::noMove)
        emit moveChosen(field().moves[*cell]);
}

void CutCanvas::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoom(keyZoom);
    case Qt::Key_Minus:
        return zoom(1 / keyZoom);
    case Qt::Key_0:
        return showAll();
    case Qt::Key_Left:
        m_view.moveBy({keyStep, 0});
        return viewChanged();
    case Qt::Key_Right:
        m_view.moveBy({-keyStep, 0});
        return viewChanged();
    case Qt::Key_Up:
        m_view.moveBy({0, keyStep});
        return viewChanged();
    case Qt::Key_Down:
        m_view.moveBy({0, -keyStep});
        return viewChanged();
    default:
        QWidget::keyPressEvent(event);
    }
}

void CutCanvas::leaveEvent(QEvent* /*event*/) {
    emit pointed({});
}

void CutCanvas::focusInEvent(QFocusEvent* /*event*/) {
    update();
}

void CutCanvas::focusOutEvent(QFocusEvent* /*event*/) {
    update();
}

std::optional<std::size_t> CutCanvas::cellAt(QPointF pixel) const {
    if (!isReady())
        return {};
    const QPointF place = m_view.toPlace(pixel);
    const sweep::Grid& grid = field().grid;
    const int column = grid.columnAt(place.x());
    const int row = grid.rowAt(place.y());
    if (!grid.holds(column, row))
        return {};
    return field().at(column, row);
}

QString CutCanvas::textAt(QPointF pixel) const {
    const auto cell = cellAt(pixel);
    if (!cell)
        return {};
    const QPointF place = m_view.toPlace(pixel);
    QStringList parts{
        QStringLiteral("X %1  Y %2").arg(place.x(), 0, 'f', 1).arg(place.y(), 0, 'f', 1)};
    const std::uint16_t depth = field().depths[*cell];
    if (depth == 0)
        return parts.front() + QStringLiteral(" – ") + tr("not cut");
    parts.append(m_shades.isThrough(depth)
                     ? tr("%1 deep, through").arg(lengthText(depth / double{sweep::depthsPerMm}))
                     : tr("%1 deep").arg(lengthText(depth / double{sweep::depthsPerMm})));
    const std::uint32_t move = field().moves[*cell];
    const CutPiece& piece = m_work->piece();
    for (const QString& text :
         {piece.toolText(piece.toolAt(move)), piece.groupAt(piece.moves[move].line)})
        if (!text.isEmpty())
            parts.append(text);
    parts.append(tr("line %1").arg(piece.moves[move].line));
    return parts.join(QStringLiteral(" – "));
}

} // namespace torvik
