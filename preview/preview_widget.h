// SPDX-License-Identifier: MIT
// The preview of the main window: the frame "picBack" with the picture "picPlot" centred in it,
// and beside or below it a strip for the legend of depths, which thus never covers the drawing; at
// the bottom the size of the drawing and a scale bar.
// Always white, whatever the system's theme. Errors are trapped here: those of what was asked for
// are reported, those of painting again (at a tick, at a new size) logged once.
// A picture of many paths is painted in the background, and the one before is shown until then.
#pragma once

#include "preview/legend.h"
#include "preview/line_picture.h"
#include "preview/machined_path.h"
#include "preview/picture_work.h"
#include "preview/preview_fit.h"

#include <QFrame>
#include <QImage>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

class QBoxLayout;
class QLabel;

namespace torvik {

struct Job;
struct ToolList;
class Logger;
class ScaleLine;
class Sheet;

class PreviewWidget : public QFrame {
public:
    PreviewWidget(const Job& job, const ToolList& tools, Logger& logger, QWidget* parent = nullptr);

    // Fits the drawing that was just read, and sizes and centres the picture. Shows nothing yet.
    void GetScale();
    // Shows the line preview, in the fit that was made last.
    void PlotLines();
    // Mode 0 draws a path of the line preview in its pen's colour, any other mode erases it.
    void DrawLine(std::int16_t path, std::int16_t mode);
    // Shows the line preview, without the given paths (subscripts of gudtPaths) unless `visible`.
    void plotBlink(const std::vector<std::int16_t>& paths, bool visible);
    // Fits and shows the finished piece with its legend. Every machined group must have a tool.
    void DrawPiece();
    // Shows no drawing at all until one of the above is called.
    void clear();

    // The fit in force.
    const PreviewFit& fit() const { return scale().fit; }
    // What the frame shows, in image pixels: of many paths what was painted last.
    const QImage& picture();

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Showing { nothing, lines, piece };

    void buildLegendStrip();
    void placeLegendStrip();
    void refitToFrame();
    void placePicture();
    void showScale();
    const LineScale& scale() const;
    FrameSize frameSize() const;
    PictureView view() const;
    QSize imageSize() const;
    void redraw();
    void startShowing(Showing what);
    bool isStale() const;
    void showLines();
    void paintLines();
    void paintPiece();
    void paintAgain();
    void paintInBackground(PictureWork::Paint paint);
    void takeLines(const LinePicture& lines);
    void takePicture();
    void showPicture(const QImage& picture);

    const Job& m_job;
    const ToolList& m_tools;
    Logger& m_logger;

    QBoxLayout* m_layout;
    Sheet* m_picBack;
    Sheet* m_picPlot;
    QLabel* m_noDrawing;
    QWidget* m_strip;
    QLabel* m_legendCaption;
    Legend* m_legend;
    ScaleLine* m_scaleLine;

    Showing m_showing = Showing::nothing;
    LineScale m_line;
    Extents m_drawn = noExtents();                          // by the drawing, however far away
    std::optional<PieceScale> m_piece;                      // while its fit is in force
    std::shared_ptr<const std::vector<WorkOnPath>> m_works; // on the piece on show
    LinePicture m_lines;
    LinePicture m_linesInWork; // what is being painted
    QImage m_picture;
    QImage m_noImage;
    double m_paintedRatio = 0; // image pixels for each pixel, when the picture was painted
    bool m_resized = true;     // since then
    bool m_failed = false;     // painting failed: not tried again until something else is shown
    PictureWork m_work{this, [this] { takePicture(); }}; // last: its thread ends first
};

} // namespace torvik
