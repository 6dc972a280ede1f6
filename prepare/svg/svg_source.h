// SPDX-License-Identifier: MIT
// An SVG picture as strokes: lines by their colour, areas without a line by their fill's, with
// closed edges, texts in single strokes. The size is the document's own in mm, its lower left
// corner the origin. Every shape is drawn or counted with its reason. Refuses what is no SVG
// picture, and pictures that use themselves without end.
#pragma once

#include "prepare/source/hpgl_source.h"

#include <string_view>

namespace torvik {

// Raises FileError; `fileName` is for the message.
SourceDrawing readSvg(std::string_view bytes, std::string_view fileName,
                      const SourceOptions& options = {});

} // namespace torvik
