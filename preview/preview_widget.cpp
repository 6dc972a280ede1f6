// SPDX-License-Identifier: MIT
#include "preview/preview_widget.h"

#include "base/error_trap.h"
#include "forms/help_key.h"
#include "forms/spoken_role.h"
#include "job/job.h"
#include "preview/paper.h"
#include "preview/piece_picture.h"
#include "preview/scale_line.h"
#include "preview/sheet.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QResizeEvent>

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

constexpr int helpPreview = 10;
constexpr int stripMargin = 8;         // pixels, as all here
constexpr int rowsBelow = 3;           // of the legend where its strip lies below the drawing
constexpr std::size_t fewPaths = 2000; // painted sooner than a thread is asked to

int pixels(float twips) {
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

} // namespace

PreviewWidget::PreviewWidget(const Job& job, const ToolList& tools, Logger& logger, QWidget* parent)
    : QFrame(parent), m_job(job), m_tools(tools), m_logger(logger),
      m_layout(new QBoxLayout(QBoxLayout::LeftToRight)), m_scaleLine(new ScaleLine(this)) {
    const auto image = [this]() -> const QImage& { return picture(); };
    m_picBack = new Sheet(image, this);
    m_picBack->setObjectName(QStringLiteral("picBack"));
    m_picBack->installEventFilter(this);
    m_picPlot = new Sheet(image, m_picBack);
    m_picPlot->setObjectName(QStringLiteral("picPlot"));
    setSpokenRole(*m_picPlot, QAccessible::Graphic);
    m_picPlot->setAccessibleName(tr("Preview of the drawing"));
    m_picPlot->setProperty(helpContextProperty, helpPreview);

    setFrameShape(QFrame::StyledPanel);
    setPalette(paper());
    setAutoFillBackground(true);
    buildLegendStrip();
    auto* const column = new QBoxLayout(QBoxLayout::TopToBottom, this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addLayout(m_layout, 1);
    column->addWidget(m_scaleLine);
    m_layout->setSpacing(0);
    m_layout->addWidget(m_picBack, 1);
    m_layout->addWidget(m_strip);
    placeLegendStrip();

    m_noDrawing = new QLabel(tr("The drawing appears here."), this);
    m_noDrawing->setObjectName(QStringLiteral("lblNoDrawing"));
    m_noDrawing->setAlignment(Qt::AlignCenter);
    m_noDrawing->setWordWrap(true);
    m_noDrawing->setPalette(quietPaper());
    startShowing(Showing::nothing);
}

void PreviewWidget::buildLegendStrip() {
    m_strip = new QWidget(this);
    m_strip->setObjectName(QStringLiteral("picLegend"));
    m_legendCaption = new QLabel(tr("Depths"), m_strip);
    m_legendCaption->setObjectName(QStringLiteral("lblLegend"));
    m_legendCaption->setIndent(stripMargin); // in line with the discs below it
    m_legend = new Legend(m_strip);
    m_legend->setObjectName(QStringLiteral("lblDepths"));
    m_legend->setAccessibleName(tr("Depths of the piece"));

    auto* column = new QBoxLayout(QBoxLayout::TopToBottom, m_strip);
    column->setContentsMargins(0, stripMargin, 0, stripMargin);
    column->setSpacing(0);
    column->addWidget(m_legendCaption);
    column->addWidget(m_legend, 1);
}

// The strip lies where it leaves more room for the drawing.
void PreviewWidget::placeLegendStrip() {
    const int stripWidth = m_legend->stripWidth();
    const int stripHeight = m_legendCaption->sizeHint().height() +
                            rowsBelow * m_legend->rowHeight() + Legend::overhang + 2 * stripMargin;
    const double shape = m_line.extents.empty() || m_line.extents.height() == 0
                             ? 1
                             : m_line.extents.width() / m_line.extents.height();
    const int room = height() - m_scaleLine->sizeHint().height();
    const bool beside = std::min<double>(width() - stripWidth, room * shape) >=
                        std::min<double>(width(), (room - stripHeight) * shape);
    m_layout->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    m_strip->setMinimumSize(0, 0);
    m_strip->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    if (beside)
        m_strip->setFixedWidth(stripWidth);
    else
        m_strip->setFixedHeight(stripHeight);
    layout()->activate();
}

// Both show the picture, and painting the lower one leaves out what the upper one covers.
void PreviewWidget::redraw() {
    m_picBack->update();
    m_picPlot->update();
}

void PreviewWidget::GetScale() {
    m_piece.reset();
    m_lines.forget();
    startShowing(Showing::nothing);
    torvik::GetScale(m_job.drawing, frameSize(), m_line, m_logger);
    m_drawn = extentsOf(m_job.drawing);
    placeLegendStrip();
    refitToFrame();
}

void PreviewWidget::PlotLines() {
    startShowing(Showing::lines);
    m_failed = !withErrorTrap(m_logger, {"PlotLines", "modHpgl"}, [this] { paintLines(); });
}

void PreviewWidget::DrawLine(std::int16_t path, std::int16_t mode) {
    withErrorTrap(m_logger, {"DrawLine", "modHpgl"}, [&] {
        if (m_showing != Showing::lines || isStale()) {
            startShowing(Showing::lines);
            paintLines();
        }
        m_lines.DrawLine(path, mode);
        showLines();
    });
}

void PreviewWidget::plotBlink(const std::vector<std::int16_t>& paths, bool visible) {
    if (m_showing != Showing::lines)
        startShowing(Showing::lines);
    if (m_failed)
        return;
    m_failed = !withQuietErrorTrap(m_logger, {"PlotLines", "modHpgl"}, [&] {
        m_lines.PlotLines(m_job, view(), imageSize());
        m_lines.plotBlink(paths, visible);
        showLines();
    });
}

void PreviewWidget::DrawPiece() {
    startShowing(Showing::piece);
    m_failed = !withErrorTrap(m_logger, {"DrawPiece", "modHpgl"}, [this] {
        PieceScale piece;
        if (!GetPieceScale(m_job.drawing, m_job.answers, m_tools, frameSize(), piece, m_logger))
            return;
        m_piece = piece;
        m_works = std::make_shared<const std::vector<WorkOnPath>>(
            worksByDepth(m_job.drawing, m_job.answers, m_tools));
        m_legend->setDepths(depthsOf(*m_works), piece.sngShallowest, piece.sngDeepest);
        placeLegendStrip(); // as wide as these depths need
        refitToFrame();
        paintPiece();
    });
    if (m_failed || !m_works)
        showPicture({});
}

void PreviewWidget::clear() {
    m_lines.forget();
    startShowing(Showing::nothing);
}

const QImage& PreviewWidget::picture() {
    if (m_showing == Showing::nothing)
        return m_noImage;
    if (isStale())
        paintAgain();
    return m_picture;
}

void PreviewWidget::startShowing(Showing what) {
    m_showing = what;
    m_failed = false;
    m_work.stop();
    m_works.reset();
    if (what == Showing::nothing)
        m_picture = {};
    m_legend->clear();
    m_legendCaption->setVisible(what == Showing::piece);
    m_legend->setVisible(what == Showing::piece);
    m_noDrawing->setVisible(what == Showing::nothing);
    m_picPlot->setVisible(what != Showing::nothing);
    showScale();
    redraw();
}

bool PreviewWidget::isStale() const {
    return m_resized || m_paintedRatio != devicePixelRatioF();
}

void PreviewWidget::paintLines() {
    m_lines.PlotLines(m_job, view(), imageSize());
    showLines();
}

// Shows what is there already, and has painted what is not.
void PreviewWidget::showLines() {
    m_resized = false;
    m_paintedRatio = devicePixelRatioF();
    if (m_lines.pathCount() <= fewPaths)
        m_lines.paint();
    if (m_lines.hasImage())
        showPicture(m_lines.image());
    if (m_lines.isPainted() || (m_work.isBusy() && m_lines.showsAs(m_linesInWork)))
        return;
    m_linesInWork = m_lines.plan();
    paintInBackground([this, lines = m_lines](const std::stop_token& stop) mutable {
        lines.paint(stop);
        return [this, lines] { takeLines(lines); };
    });
}

void PreviewWidget::takeLines(const LinePicture& lines) {
    m_lines.adopt(lines);
    if (m_lines.hasImage())
        showPicture(m_lines.image());
}

void PreviewWidget::paintPiece() {
    m_resized = false;
    m_paintedRatio = devicePixelRatioF();
    const auto paint = [size = imageSize(), view = view(), works = m_works,
                        piece = *m_piece](const std::stop_token& stop) {
        QImage image;
        torvik::paintPiece(image, size, view, *works, piece, stop);
        return image;
    };
    if (m_works->size() <= fewPaths)
        return showPicture(paint({}));
    paintInBackground([this, paint](const std::stop_token& stop) {
        return [this, image = paint(stop)] { showPicture(image); };
    });
}

void PreviewWidget::paintInBackground(PictureWork::Paint paint) {
    if (m_work.start(std::move(paint)))
        m_work.takeOver();
}

void PreviewWidget::takePicture() {
    m_failed |= !withQuietErrorTrap(m_logger, {"paintInBackground", "modHpgl"},
                                    [this] { m_work.takeOver(); });
}

void PreviewWidget::showPicture(const QImage& picture) {
    m_picture = picture;
    redraw();
}

void PreviewWidget::paintAgain() {
    if (m_failed)
        return;
    const bool piece = m_showing == Showing::piece;
    m_failed = !withQuietErrorTrap(m_logger, {piece ? "DrawPiece" : "PlotLines", "modHpgl"}, [&] {
        if (!piece)
            paintLines();
        else if (m_piece)
            paintPiece();
    });
}

FrameSize PreviewWidget::frameSize() const {
    return {static_cast<float>(m_picBack->width() * twipsPerPixel),
            static_cast<float>(m_picBack->height() * twipsPerPixel)};
}

const LineScale& PreviewWidget::scale() const {
    if (m_piece)
        return *m_piece;
    return m_line;
}

// What is shown stands where its own fit centres it; picPlot stays where the lines are fitted.
PictureView PreviewWidget::view() const {
    const double ratio = devicePixelRatioF();
    const PictureBox& box = scale().picture;
    return {scale().fit,
            pixels(box.sngHeight) * twipsPerPixel,
            {std::round(pixels(box.sngLeft) * ratio), std::round(pixels(box.sngTop) * ratio)},
            ratio};
}

QSize PreviewWidget::imageSize() const {
    const double ratio = devicePixelRatioF();
    return {static_cast<int>(std::ceil(m_picBack->width() * ratio)),
            static_cast<int>(std::ceil(m_picBack->height() * ratio))};
}

void PreviewWidget::refitToFrame() {
    m_resized = true;
    withQuietErrorTrap(m_logger, {"GetScale", "modHpgl"}, [this] {
        refit(m_line, frameSize());
        if (m_piece)
            refit(*m_piece, frameSize());
    });
    placePicture();
    showScale();
}

void PreviewWidget::showScale() {
    if (m_showing == Showing::nothing || m_line.extents.empty())
        m_scaleLine->clear();
    else
        m_scaleLine->showScale(m_drawn.width(), m_drawn.height(),
                               scale().fit.gsngScale / twipsPerPixel);
}

void PreviewWidget::placePicture() {
    const PictureBox& box = m_line.picture;
    m_picPlot->setGeometry(pixels(box.sngLeft), pixels(box.sngTop), pixels(box.sngWidth),
                           pixels(box.sngHeight));
}

QSize PreviewWidget::minimumSizeHint() const {
    return {200, 200};
}

QSize PreviewWidget::sizeHint() const {
    return {560, 460};
}

void PreviewWidget::resizeEvent(QResizeEvent* event) {
    QFrame::resizeEvent(event);
    m_noDrawing->setGeometry(rect());
    placeLegendStrip();
}

bool PreviewWidget::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize && watched == m_picBack)
        refitToFrame();
    return QFrame::eventFilter(watched, event);
}

} // namespace torvik
