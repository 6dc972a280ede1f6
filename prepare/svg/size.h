// SPDX-License-Identifier: MIT
// How large a picture is on the part: by its width and height, its view box, and how many pixels
// of the writing program make an inch.
#pragma once

#include "prepare/source/source_options.h"
#include "prepare/svg/document.h"
#include "prepare/svg/lengths.h"
#include "prepare/svg/view_box.h"

namespace torvik::svg {

struct PictureSize {
    LengthRules rules; // within the picture
    double width = 0;  // in pixels; 0 where the picture does not say it
    double height = 0;
    Affine map;         // from the picture's units to pixels
    std::string remark; // what was taken for granted; empty where nothing was

    bool isKnown() const { return width > 0 && height > 0; }
};

PictureSize sizeOf(const Document& document, const SourceOptions& options);

} // namespace torvik::svg
