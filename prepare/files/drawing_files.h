// SPDX-License-Identifier: MIT
// From a source's bytes to strokes, whichever kind it is of. Refuses to write over the source.
#pragma once

#include "prepare/source/hpgl_source.h"

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

namespace torvik {

// A picture by its name's extension ".svg", else a drawing in the pen language. The colours give
// those of a picture to pens, `roundTurn` is in degrees. Raises FileError.
SourceDrawing readSource(std::string_view bytes, std::string_view fileName, double roundTurn,
                         const std::map<std::string, int>& colours);

// Raises FileError where the output is the source itself.
void requireOtherFile(const std::filesystem::path& output, const std::filesystem::path& source);

} // namespace torvik
