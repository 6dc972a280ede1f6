// SPDX-License-Identifier: MIT
// One run of the preparation for the dialog: from a file to what is shown and saved. Everything
// that can go wrong becomes a text, because it runs where nobody could catch it.
#pragma once

#include "prepare/dialog/stroke_picture.h"
#include "prepare/prepare.h"
#include "prepare/report.h"

#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace torvik {

// A pen of the source, or a colour of a picture, and which pen draws it.
struct SourcePen {
    int number = 0;
    std::string colour; // "#rrggbb" or "layer:NAME"; empty where it is a pen
    long strokes = 0;
    int target = 0; // 1 to 8; 0: none is chosen yet
};

struct PrepareRequest {
    std::filesystem::path source;
    std::shared_ptr<const std::string> bytes; // of the source; null: they are still to be read
    PrepareOptions options;
    SourceOptions sourceOptions;
};

struct PrepareResult {
    std::shared_ptr<const std::string> bytes; // null where the source cannot be read
    std::vector<SourcePen> pens;
    std::string error;           // empty where there is a drawing to save
    std::string text;            // of that drawing
    std::vector<ReportRow> lost; // what the drawing lost
    std::vector<ReportRow> rows;
    SizeDoubt sizeDoubt = SizeDoubt::none;
    bool hasLayers = false;
    std::shared_ptr<const StrokePicture> before; // null where the source cannot be understood
    std::shared_ptr<const StrokePicture> after;  // null after an error
};

PrepareResult prepareSource(const PrepareRequest& request);

} // namespace torvik
