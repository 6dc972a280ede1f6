// SPDX-License-Identifier: MIT
// From a source's bytes to strokes, whichever kind it is of. Refuses to write over the source.
#pragma once

#include "prepare/source/hpgl_source.h"

#include <filesystem>
#include <string_view>

namespace torvik {

// A picture by its name's extension ".svg", else a drawing in the pen language. Raises FileError.
SourceDrawing readSource(std::string_view bytes, std::string_view fileName,
                         const SourceOptions& options = {});

// Raises FileError where the output is the source itself.
void requireOtherFile(const std::filesystem::path& output, const std::filesystem::path& source);

} // namespace torvik
