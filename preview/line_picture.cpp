// SPDX-License-Identifier: MIT
#include "preview/line_picture.h"

#include "job/job.h"
#include "preview/depths.h"
#include "preview/image_canvas.h"
#include "preview/sharp_lines.h"
#include "preview/stroke_painter.h"

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

// A line of odd width is sharp in the middle of pixels, one of even width between them.
PictureView alignedToPixels(PictureView view) {
    if (std::fmod(view.lineWidth(), 2) == 1) {
        view.origin.x += 0.5;
        view.origin.y += 0.5;
    }
    return view;
}

} // namespace

void LinePicture::PlotLines(const Job& job, const PictureView& view, QSize size) {
    if (!m_paths) {
        const auto& paths = job.drawing.gudtPaths;
        m_paths = std::make_shared<const std::vector<Path>>(paths.begin(), paths.end());
        for (std::int16_t pen = 1; pen < static_cast<std::int16_t>(m_colours.size()); ++pen)
            m_colours[static_cast<std::size_t>(pen)] = lngPenColour(job.answers, pen);
    }
    if (view != m_view || size != m_size)
        for (Frame& frame : m_frames)
            frame = {};
    m_view = view;
    m_size = size;
    m_machined.clear();
    for (const Path& path : *m_paths)
        m_machined.push_back(!job.answers.gudtPens[path.intPen].blnOmit);
    m_shown = m_machined;
    want(m_shown, 0);
}

void LinePicture::DrawLine(std::int16_t path, std::int16_t mode) {
    m_shown[flagOf(path)] = mode == 0;
    want(m_shown, m_shown == m_machined ? 0 : 1);
}

void LinePicture::plotBlink(const std::vector<std::int16_t>& paths, bool visible) {
    m_shown = m_machined;
    for (const std::int16_t path : paths)
        m_shown[flagOf(path)] = false;
    want(m_shown, 1); // at once, so that no later frame of the blinking takes longer
    if (visible) {
        m_shown = m_machined;
        want(m_shown, 0);
    }
}

void LinePicture::forget() {
    m_paths.reset();
    m_frames = {};
}

std::size_t LinePicture::flagOf(std::int16_t path) const {
    const auto count = static_cast<long>(m_machined.size());
    if (path < 1 || path > count)
        throw SubscriptOutOfRange(path, 1, count);
    return static_cast<std::size_t>(path - 1);
}

void LinePicture::want(const Flags& shown, std::size_t number) {
    m_current = number;
    Frame& frame = m_frames[number];
    if (frame.shown == shown && !frame.image.isNull())
        return;
    frame.shown = shown;
    frame.isPainted = false;
}

bool LinePicture::isPainted() const {
    return std::ranges::all_of(m_frames, &Frame::isPainted);
}

bool LinePicture::liesAs(const LinePicture& other) const {
    return m_paths == other.m_paths && m_view == other.m_view && m_size == other.m_size;
}

bool LinePicture::showsAs(const LinePicture& other) const {
    return liesAs(other) &&
           std::ranges::equal(m_frames, other.m_frames, {}, &Frame::shown, &Frame::shown);
}

LinePicture LinePicture::plan() const {
    LinePicture plan = *this;
    for (Frame& frame : plan.m_frames)
        frame.image = {};
    return plan;
}

void LinePicture::paint(const std::stop_token& stop) {
    for (Frame& frame : m_frames)
        if (!frame.isPainted)
            paintFrame(frame, stop);
}

void LinePicture::adopt(const LinePicture& painted) {
    if (!liesAs(painted))
        return;
    for (std::size_t i = 0; i < m_frames.size(); ++i)
        if (painted.m_frames[i].isPainted && painted.m_frames[i].shown == m_frames[i].shown)
            m_frames[i] = painted.m_frames[i];
}

const QImage& LinePicture::image() {
    paint();
    return m_frames[m_current].image;
}

// What lies on top comes first.
void LinePicture::paintFrame(Frame& frame, const std::stop_token& stop) const {
    fitImage(frame.image, m_size);
    const PictureView aligned = alignedToPixels(m_view);
    const double width = m_view.lineWidth();
    const SharpLines sharpLines(*m_paths, aligned, m_size.width(), m_size.height());
    StrokePainter painter(canvasOf(frame.image), width, stop);
    Points line;
    for (std::size_t i = m_paths->size(); i-- > 0 && !stop.stop_requested();) {
        if (!frame.shown[i])
            continue;
        const Path& path = (*m_paths)[i];
        line.clear();
        appendLine(line, path, aligned, Chords::across);
        if (width == 1)
            sharpLines.align(line);
        painter.setColour(m_colours.at(static_cast<std::size_t>(path.intPen)));
        painter.line(line, width);
    }
    painter.finish();
    frame.isPainted = !stop.stop_requested();
}

} // namespace torvik
