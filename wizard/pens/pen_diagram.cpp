// SPDX-License-Identifier: MIT
#include "wizard/pens/pen_diagram.h"

#include "wizard/pens/side_view.h"

#include <QPainter>
#include <QPainterPath>

#include <span>

namespace torvik {
namespace {

// The picture's own units, fitted into the widget.
constexpr int pictureWidth = 120;
constexpr int pictureHeight = 90;
constexpr int surface = 36;
constexpr int wordHeight = 11;
constexpr double enlarged = 1.2;

// What the picture shows of a row: a length with its figure, a way of the tool, its turning, or the
// time that it stays.
enum class Kind { length, way, turning, time };
struct Mark {
    Kind kind;
    QPoint from;
    QPoint to;
    QPoint word; // where the figure begins
};

constexpr std::array<Mark, penRowCount> cuttingMarks{{
    {Kind::turning, {40, 16}, {}, {}},
    {Kind::way, {56, 66}, {84, 66}, {}},
    {Kind::way, {60, 10}, {60, 32}, {}},
    {Kind::length, {82, surface}, {82, 72}, {93, 58}},
    {Kind::length, {82, surface}, {82, 48}, {93, 46}},
    {Kind::length, {82, 60}, {82, 72}, {93, 70}},
    {Kind::way, {56, 66}, {84, 66}, {}},
}};
constexpr std::array<Mark, 5> drillingMarks{{
    {Kind::turning, {60, 16}, {}, {}},
    {Kind::way, {82, 6}, {82, 30}, {}},
    {Kind::length, {78, surface}, {78, 77}, {84, 60}},
    {Kind::time, {88, 66}, {}, {}},
    {Kind::length, {78, surface}, {78, 50}, {84, 47}},
}};

// The material with an opening down to `depth`, its bottom pointed where a drill made it.
void drawMaterial(QPainter& painter, int left, int right, int depth, int point) {
    const QPolygon outline({{2, surface},
                            {left, surface},
                            {left, depth},
                            {(left + right) / 2, depth + point},
                            {right, depth},
                            {right, surface},
                            {pictureWidth - 2, surface},
                            {pictureWidth - 2, pictureHeight - 2},
                            {2, pictureHeight - 2}});
    painter.setPen(QPen(side_view::woodEdge, 1.5));
    painter.setBrush(side_view::wood);
    painter.drawPolygon(outline);
}

void drawCutting(QPainter& painter, const QColor& passes) {
    drawMaterial(painter, 30, 90, 72, 0);
    painter.setPen(QPen(passes, 1.5, Qt::DotLine));
    for (const int pass : {48, 60}) // the passes above the last
        painter.drawLine(30, pass, 90, pass);
    side_view::drawTool(painter, {30, 50, 4, 72});
}

void drawDrilling(QPainter& painter) {
    drawMaterial(painter, 51, 69, 70, 7);
    side_view::drawTool(painter, {51, 69, 4, 58, 7});
}

// Round the tool, as it is seen from a little above.
void drawTurning(QPainter& painter, QPoint middle) {
    const QRectF round(middle.x() - 18, middle.y() - 6, 36, 12);
    QPainterPath path;
    path.arcMoveTo(round, 150);
    path.arcTo(round, 150, 240);
    const QPointF end = path.currentPosition();
    side_view::drawMark(painter, path);
    side_view::drawArrow(painter, end + QPointF(1, 3), end, side_view::Heads::one);
}

void drawClock(QPainter& painter, QPoint middle) {
    QPainterPath path;
    path.addEllipse(QPointF(middle), 9, 9);
    path.moveTo(middle + QPoint(0, -6));
    path.lineTo(middle);
    path.lineTo(middle + QPoint(4, 2));
    side_view::drawMark(painter, path);
}

void drawMarkOf(QPainter& painter, const Mark& mark, const QString& typed) {
    switch (mark.kind) {
    case Kind::turning:
        drawTurning(painter, mark.from);
        break;
    case Kind::time:
        drawClock(painter, mark.from);
        break;
    case Kind::way:
        side_view::drawArrow(painter, mark.from, mark.to, side_view::Heads::one);
        break;
    case Kind::length:
        side_view::drawArrow(painter, mark.from, mark.to, side_view::Heads::both);
        side_view::drawWord(painter, mark.word, typed);
        break;
    }
}

} // namespace

PenDiagram::PenDiagram(QWidget* parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PenDiagram::setForm(PenForm form) {
    m_form = form;
    update();
}

void PenDiagram::mark(std::size_t row, const QString& typed) {
    m_marked = row;
    m_typed = typed;
    update();
}

void PenDiagram::unmark() {
    m_marked.reset();
    update();
}

QSize PenDiagram::sizeHint() const {
    return QSize(pictureWidth, pictureHeight) * enlarged;
}

void PenDiagram::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width() / double{pictureWidth}, height() / double{pictureHeight});
    QFont words = font();
    words.setPixelSize(wordHeight);
    painter.setFont(words);
    const bool isDrilled = m_form == PenForm::drilling;
    if (isDrilled)
        drawDrilling(painter);
    else
        drawCutting(painter, palette().color(QPalette::WindowText));
    const std::span<const Mark> marks =
        isDrilled ? std::span<const Mark>(drillingMarks) : std::span<const Mark>(cuttingMarks);
    if (m_marked && *m_marked < marks.size())
        drawMarkOf(painter, marks[*m_marked], m_typed);
}

} // namespace torvik
