// SPDX-License-Identifier: MIT
// A drawing in the pen language of plotters as strokes. Takes the language in all its forms (see
// instruction_table.h); what it does not know is counted and passed over. Refuses a number that
// fits no double, a place more than 100 m away, more segments than the given limit, and a file most
// of which it does not know.
#pragma once

#include "prepare/source/source_options.h"
#include "prepare/source/source_report.h"
#include "prepare/strokes.h"

#include <string_view>
#include <vector>

namespace torvik {

struct SourceDrawing {
    std::vector<Stroke> strokes; // dots, too; pens of 1 and above, 0 where it has a colour
    SourceReport report;
    // What the source shows and nothing draws: to be shown, no more.
    std::vector<Stroke> leftOut{};
};

// Raises FileError, with the line where there is one; `fileName` is for the message.
SourceDrawing readHpgl(std::string_view bytes, std::string_view fileName,
                       const SourceOptions& options = {});

} // namespace torvik
