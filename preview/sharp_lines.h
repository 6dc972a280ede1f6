// SPDX-License-Identifier: MIT
// Level and upright lines of one pixel are painted in the middle of pixels; between two of them a
// line would be twice as wide and half as dark. What ends where such a line runs moves with it, so
// that nothing sticks out where they meet. Lengths are image pixels.
#pragma once

#include "preview/path_points.h"

#include <vector>

namespace torvik {

struct Path;

class SharpLines {
public:
    // From all the drawing's lines, so that a path lies where it does whatever others show.
    // `width` and `height` are the image's.
    SharpLines(const std::vector<Path>& paths, const PictureView& view, int width, int height);

    // Moves the ends of a path's line, and what is between them by a share of both.
    void align(Points& line) const;

private:
    // Across the image: where lines run, and where they are painted.
    class Axis {
    public:
        explicit Axis(int pixels);

        void addLine(double place);
        double shiftOf(double place) const;

    private:
        std::vector<float> m_middles; // 0 where no line runs
    };

    Axis m_columns;
    Axis m_rows;
};

} // namespace torvik
