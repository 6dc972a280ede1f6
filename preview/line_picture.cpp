// SPDX-License-Identifier: MIT
#include "preview/line_picture.h"

#include "job/job.h"
#include "preview/depths.h"
#include "preview/outlines.h"
#include "preview/painting.h"

#include <cmath>

namespace torvik {
namespace {

// Longer ones take the painter far more than their share of time.
constexpr std::size_t longestChain = 64;
constexpr double samePlace = 0.05; // image pixels

// Paints lines; those of one colour that follow one another become one, with proper corners.
class ChainPainter {
public:
    ChainPainter(QPainter& painter, double lineWidth) : m_painter(painter) {
        m_pen.setWidthF(lineWidth);
        m_pen.setCapStyle(Qt::SquareCap);
        m_pen.setJoinStyle(Qt::MiterJoin);
    }

    void add(const Points& line, std::int32_t colour) {
        if (colour != m_colour || !continues(line.front()))
            flush();
        m_colour = colour;
        m_chain.insert(m_chain.end(), line.begin() + (m_chain.empty() ? 0 : 1), line.end());
        if (m_chain.size() >= longestChain) {
            const ScreenPoint last = m_chain.back();
            flush();
            m_chain.push_back(last);
        }
    }

    void flush() {
        if (m_chain.size() > 1)
            paint();
        m_chain.clear();
    }

private:
    bool continues(ScreenPoint start) const {
        return !m_chain.empty() && std::fabs(m_chain.back().x - start.x) < samePlace &&
               std::fabs(m_chain.back().y - start.y) < samePlace;
    }

    void paint() {
        const QPointF start(m_chain.front().x, m_chain.front().y);
        const QColor colour = colourOf(m_colour);
        if (polygonOf(m_chain, m_polygon).count(start) == m_polygon.size()) {
            paintDot(start, colour); // a line of no length would not show
            return;
        }
        m_pen.setColor(colour);
        m_painter.setPen(m_pen);
        m_painter.drawPolyline(m_polygon);
    }

    void paintDot(QPointF centre, const QColor& colour) {
        QRectF dot(0, 0, m_pen.widthF(), m_pen.widthF());
        dot.moveCenter(centre);
        m_painter.fillRect(dot, colour);
    }

    QPainter& m_painter;
    QPen m_pen;
    std::int32_t m_colour = 0;
    Points m_chain;
    QPolygonF m_polygon;
};

// A line of odd width is sharp in the middle of pixels, one of even width between them.
PictureView alignedToPixels(PictureView view) {
    if (std::fmod(view.lineWidth(), 2) == 1) {
        view.origin.x += 0.5;
        view.origin.y += 0.5;
    }
    return view;
}

void paintLines(QImage& image, const Job& job, const PictureView& view,
                const std::vector<bool>& shown) {
    const PictureView aligned = alignedToPixels(view);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    ChainPainter chains(painter, view.lineWidth());
    Points line;
    for (std::size_t i = 0; i < shown.size(); ++i) {
        if (!shown[i])
            continue;
        const Path& path = job.gudtPaths[static_cast<long>(i) + 1];
        line.clear();
        appendLine(line, path, aligned);
        chains.add(line, lngPenColour(job, path.intPen));
    }
    chains.flush();
}

std::vector<bool> machinedPaths(const Job& job) {
    std::vector<bool> machined;
    machined.reserve(static_cast<std::size_t>(job.gudtPaths.count()));
    for (const Path& path : job.gudtPaths)
        machined.push_back(!job.gudtPens[path.intPen].blnOmit);
    return machined;
}

std::size_t flagOf(const Job& job, std::int16_t path) {
    if (path < 1 || path > job.gudtPaths.count())
        throw SubscriptOutOfRange(path, 1, job.gudtPaths.count());
    return static_cast<std::size_t>(path - 1);
}

} // namespace

void LinePicture::PlotLines(const Job& job, const PictureView& view, QSize size) {
    if (view != m_view || size != m_size)
        forget();
    m_view = view;
    m_size = size;
    m_machined = machinedPaths(job);
    m_shown = m_machined;
    showFlags(job, m_shown, 0);
}

void LinePicture::DrawLine(const Job& job, std::int16_t path, std::int16_t mode) {
    m_shown[flagOf(job, path)] = mode == 0;
    showFlags(job, m_shown, m_shown == m_machined ? 0 : 1);
}

void LinePicture::plotBlink(const Job& job, const std::vector<std::int16_t>& paths, bool visible) {
    m_machined = machinedPaths(job);
    m_shown = m_machined;
    if (!visible)
        for (const std::int16_t path : paths)
            m_shown[flagOf(job, path)] = false;
    showFlags(job, m_shown, visible ? 0 : 1);
}

void LinePicture::forget() {
    for (Frame& frame : m_frames)
        frame.valid = false;
}

void LinePicture::showFlags(const Job& job, const Flags& shown, std::size_t number) {
    m_current = number;
    Frame& frame = m_frames[number];
    if (frame.valid && frame.shown == shown)
        return;
    frame.valid = false;
    clearImage(frame.image, m_size);
    paintLines(frame.image, job, m_view, shown);
    frame.shown = shown;
    frame.valid = true;
}

} // namespace torvik
