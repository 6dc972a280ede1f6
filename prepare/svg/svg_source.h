// SPDX-License-Identifier: MIT
// An SVG picture as strokes: lines by their colour, areas without a line by their fill's. The
// size is the document's own in mm, its lower left corner the origin. Texts and pictures made of
// dots are not drawn. Refuses what is no SVG picture.
#pragma once

#include "prepare/source/hpgl_source.h"

#include <map>
#include <string>
#include <string_view>

namespace torvik {

struct SvgSourceOptions {
    std::map<std::string, int> pens; // "#rrggbb" in small letters; other colours: the nearest pen
};

// Raises FileError; `fileName` is for the message.
SourceDrawing readSvg(std::string_view bytes, std::string_view fileName,
                      const SvgSourceOptions& options = {});

} // namespace torvik
