// SPDX-License-Identifier: MIT
// The line preview as an image: every machined path in its pen's colour. A path that is erased
// leaves the others whole, crossings included, and one that is drawn again gives the same pixels
// as before: a picture is always painted from all the paths that show, and the last two are kept,
// so that blinking paints nothing anew. A copy shares the paths and the images; it may be painted
// in another thread and then be adopted.
#pragma once

#include "job/records.h"
#include "preview/picture_view.h"

#include <QImage>

#include <array>
#include <cstdint>
#include <memory>
#include <stop_token>
#include <vector>

namespace torvik {

struct Job;

class LinePicture {
public:
    // Shows all paths of the pens that are not left out. `size` is the image's, in image pixels.
    // Nothing is painted again while view, size and left-out pens stay. Raises SubscriptOutOfRange
    // at a pen outside 1 to 8.
    void PlotLines(const Job& job, const PictureView& view, QSize size);

    // Mode 0 draws the path (a subscript of gudtPaths) in its pen's colour, any other mode erases
    // it. Raises SubscriptOutOfRange.
    void DrawLine(std::int16_t path, std::int16_t mode);

    // The picture of the last PlotLines, without the given paths unless `visible`. For other paths
    // than before both pictures are to be painted, then none. Raises SubscriptOutOfRange.
    void plotBlink(const std::vector<std::int16_t>& paths, bool visible);

    // The job holds another drawing: what was kept means nothing any more.
    void forget();

    std::size_t pathCount() const { return m_machined.size(); }
    // Whether nothing is to be painted, and whether the image at least is there.
    bool isPainted() const;
    bool hasImage() const { return m_frames[m_current].isPainted; }
    // The same without the images, to be told from others by showsAs().
    LinePicture plan() const;
    // Whether both are to show the same, painted or not.
    bool showsAs(const LinePicture& other) const;
    // Paints what is missing; when it is stopped some stays so.
    void paint(const std::stop_token& stop = {});
    // Takes what a copy has painted, where it still fits.
    void adopt(const LinePicture& painted);

    // Paints it where that was not done.
    const QImage& image();

private:
    using Flags = std::vector<bool>; // one for each path

    struct Frame {
        QImage image;
        Flags shown;
        bool isPainted = true; // as nothing is wanted of it yet
    };

    std::size_t flagOf(std::int16_t path) const;
    bool liesAs(const LinePicture& other) const;
    void want(const Flags& shown, std::size_t number);
    void paintFrame(Frame& frame, const std::stop_token& stop) const;

    std::shared_ptr<const std::vector<Path>> m_paths; // of the drawing
    std::array<std::int32_t, 9> m_colours{};          // of pens 1 to 8
    PictureView m_view;
    QSize m_size;
    Flags m_machined; // what PlotLines shows
    Flags m_shown;
    std::array<Frame, 2> m_frames; // as PlotLines paints it, and with some paths erased
    std::size_t m_current = 0;
};

} // namespace torvik
