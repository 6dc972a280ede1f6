// SPDX-License-Identifier: MIT
// How a drawing is fitted into the preview. Screen lengths are twips, 15 to a pixel whatever the
// screen's own scaling; drawing lengths are mm. The fits are kept as extents and figures, so that
// they can be made again for another size without the drawing.
#pragma once

#include "job/extents.h"

namespace torvik {

struct Answers;
struct Drawing;
struct ToolList;
class Logger;

inline constexpr double twipsPerPixel = 15;
inline constexpr double marginTwips = 8 * twipsPerPixel; // round the drawing, inside the picture

// The inner size of the frame that the picture stands in.
struct FrameSize {
    float sngWidth = 0;
    float sngHeight = 0;
};

// Screen X = gsngScale * x - gsngOffsetX, screen Y = picture's height - gsngScale * y +
// gsngOffsetY. As it stands: 1 mm on a pixel, the origin at the lower left margin.
struct PreviewFit {
    float gsngScale = twipsPerPixel; // twips for each mm
    float gsngOffsetX = -marginTwips;
    float gsngOffsetY = -marginTwips;

    bool operator==(const PreviewFit&) const = default;
};

// Where the picture stands in its frame.
struct PictureBox {
    float sngLeft = 0;
    float sngTop = 0;
    float sngWidth = 0;
    float sngHeight = 0;
};

// A fit, and the place in the frame that centres what it shows.
struct LineScale {
    Extents extents = noExtents();
    PreviewFit fit;
    PictureBox picture;
};

// That of the finished piece, tools' widths included, with its range of depths.
struct PieceScale : LineScale {
    float sngShallowest = 1000; // mm, as they stand for a piece without any depth
    float sngDeepest = 0;
};

// Fits all paths of the drawing. An empty drawing fills the frame with an empty picture. False
// after a trapped error, which leaves the fit of an empty drawing.
bool GetScale(const Drawing& drawing, FrameSize frame, LineScale& scale, Logger& logger);

// Fits the piece: each path with half its tool's width round it, a drilled circle as its tool's
// disc, a left-out path as it is drawn. False after a trapped error: a machined group without a
// tool; `piece` then stays.
bool GetPieceScale(const Drawing& drawing, const Answers& answers, const ToolList& tools,
                   FrameSize frame, PieceScale& piece, Logger& logger);

// The same fit for a frame of another size. Raises Overflow.
void refit(LineScale& scale, FrameSize frame);

} // namespace torvik
