// SPDX-License-Identifier: MIT
// Jobs whose groups have tools and depths, and two looks at a picture.
#pragma once

#include "job/job.h"
#include "preview/picture_view.h"
#include "tests/job/drawing.h"
#include "tools/tool_list.h"

#include <QImage>

#include <string>
#include <vector>

namespace torvik {

// A tool for each diameter, at the places 1, 2, ...
inline ToolList toolsOf(const std::vector<float>& diameters) {
    ToolList tools;
    for (const float diameter : diameters) {
        ++tools.gintToolCount;
        tools.gudtTools.append({tools.gintToolCount, "Slot drill", diameter});
    }
    return tools;
}

struct Group {
    std::int16_t tool;
    float depth;
};

// The drawing's settings groups in their order, each with its tool and depth.
inline Job machinedDrawing(std::string text, const std::vector<Group>& groups) {
    Job job = setUpDrawing(std::move(text));
    for (long i = 1; i <= static_cast<long>(groups.size()); ++i) {
        job.answers.gudtSettings[i].intTool = groups[static_cast<std::size_t>(i - 1)].tool;
        job.answers.gudtSettings[i].sngDepth = groups[static_cast<std::size_t>(i - 1)].depth;
    }
    return job;
}

// The origin at the lower left corner of a picture of that height, so many pixels for each mm.
inline PictureView plainView(double pixelsPerMm, int height, double pixelRatio = 1) {
    PictureView view;
    view.fit = {static_cast<float>(pixelsPerMm * twipsPerPixel), 0, 0};
    view.scaleHeight = height * twipsPerPixel;
    view.pixelRatio = pixelRatio;
    return view;
}

inline constexpr QRgb white = 0xFFFFFFFF;

} // namespace torvik
