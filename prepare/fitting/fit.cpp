// SPDX-License-Identifier: MIT
#include "prepare/fitting/fit.h"

#include "base/errors.h"
#include "prepare/fitting/stroke_fitter.h"

#include <algorithm>
#include <utility>

namespace torvik {

void fitStrokes(std::vector<Stroke>& strokes, const FitOptions& options, FitReport& report) {
    constexpr std::size_t mostSegments = 4'000'000;
    std::size_t segments = 0;
    for (Stroke& stroke : strokes) {
        const bool wasDot = stroke.isDot();
        stroke = StrokeFitter(std::move(stroke), options, report).fitted();
        segments += stroke.segments.size();
        if (segments > mostSegments)
            throw RunTimeError("the drawing's curves are too many and too large to be drawn with "
                               "this tolerance");
        // A stroke too small to be written leaves nothing, least of all a dot.
        if (!wasDot && stroke.isDot())
            stroke.pen = 0;
    }
    std::erase_if(strokes, [](const Stroke& stroke) { return stroke.pen == 0; });
}

} // namespace torvik
