// SPDX-License-Identifier: MIT
// In place of the SVG source where Qt is there without its Svg module.
#include "base/errors.h"
#include "prepare/svg/svg_source.h"

namespace torvik {

SourceDrawing readSvg(std::string_view /*bytes*/, std::string_view fileName,
                      const SvgSourceOptions& /*options*/) {
    throw FileError(std::string(fileName),
                    "this copy of Torvik was built without SVG; please save the drawing as HPGL");
}

} // namespace torvik
