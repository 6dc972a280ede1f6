// SPDX-License-Identifier: MIT
// A CAD drawing in the exchange form DXF (of text, R12 to 2018) as strokes: what lies flat on the
// model's side, in the drawing's own unit and place. What is not drawn is counted with its reason.
// Refuses binary drawings, what is no DXF, and blocks that use themselves without end.
#pragma once

#include "prepare/source/hpgl_source.h"

#include <string_view>

namespace torvik {

// Raises FileError; `fileName` is for the message.
SourceDrawing readDxf(std::string_view bytes, std::string_view fileName,
                      const SourceOptions& options = {});

} // namespace torvik
