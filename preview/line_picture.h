// SPDX-License-Identifier: MIT
// The line preview as an image: every machined path in its pen's colour. A path that is erased
// leaves the others whole, crossings included, and one that is drawn again gives the same pixels
// as before: a picture is always painted from all the paths that show, and the last two are kept,
// so that blinking paints nothing anew.
#pragma once

#include "preview/picture_view.h"

#include <QImage>

#include <array>
#include <cstdint>
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
    void DrawLine(const Job& job, std::int16_t path, std::int16_t mode);

    // The picture of the last PlotLines, without the given paths unless `visible`. The first frame
    // for other paths than before paints both pictures, the later ones none. Raises
    // SubscriptOutOfRange.
    void plotBlink(const Job& job, const std::vector<std::int16_t>& paths, bool visible);

    // The job holds another drawing: what was kept means nothing any more.
    void forget();

    const QImage& image() const { return m_frames[m_current].image; }

private:
    using Flags = std::vector<bool>; // one for each path

    struct Frame {
        QImage image;
        Flags shown;
        bool valid = false;
    };

    void showFlags(const Job& job, const Flags& shown, std::size_t number);

    PictureView m_view;
    QSize m_size;
    Flags m_machined; // what PlotLines shows
    Flags m_shown;
    std::array<Frame, 2> m_frames; // as PlotLines paints it, and with some paths erased
    std::size_t m_current = 0;
};

} // namespace torvik
