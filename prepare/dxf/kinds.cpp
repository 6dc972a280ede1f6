// SPDX-License-Identifier: MIT
#include "prepare/dxf/kinds.h"

#include "prepare/dxf/polylines.h"
#include "prepare/dxf/splines.h"

#include <algorithm>
#include <array>

namespace torvik::dxf {
namespace {

constexpr std::array kinds{
    Kind{"LINE", &lineOf, {}},
    Kind{"CIRCLE", &circleOf, {}},
    Kind{"ARC", &arcOf, {}},
    Kind{"ELLIPSE", &ellipseOf, {}},
    Kind{"LWPOLYLINE", &lightPolylineOf, {}},
    Kind{"SPLINE", &splineOf, {}},
    Kind{"POINT", &pointOf, {}},
    Kind{"SOLID", &cornersOf, {}},
    Kind{"TRACE", &cornersOf, {}},
    Kind{"HATCH", nullptr, "hatches (not drawn)"},
    Kind{"MPOLYGON", nullptr, "hatches (not drawn)"},
    Kind{"DIMENSION", nullptr, "dimensions (not drawn)"},
    Kind{"ARC_DIMENSION", nullptr, "dimensions (not drawn)"},
    Kind{"LARGE_RADIAL_DIMENSION", nullptr, "dimensions (not drawn)"},
    Kind{"LEADER", nullptr, "dimensions (not drawn)"},
    Kind{"MULTILEADER", nullptr, "dimensions (not drawn)"},
    Kind{"TOLERANCE", nullptr, "dimensions (not drawn)"},
    Kind{"ATTDEF", nullptr, "templates of texts (not drawn)"},
    Kind{"3DFACE", nullptr, tiltedThings},
    Kind{"3DSOLID", nullptr, tiltedThings},
    Kind{"BODY", nullptr, tiltedThings},
    Kind{"REGION", nullptr, tiltedThings},
    Kind{"MESH", nullptr, tiltedThings},
    Kind{"SURFACE", nullptr, tiltedThings},
    Kind{"EXTRUDEDSURFACE", nullptr, tiltedThings},
    Kind{"LOFTEDSURFACE", nullptr, tiltedThings},
    Kind{"REVOLVEDSURFACE", nullptr, tiltedThings},
    Kind{"SWEPTSURFACE", nullptr, tiltedThings},
    Kind{"HELIX", nullptr, tiltedThings},
    Kind{"IMAGE", nullptr, "pictures (not drawn)"},
    Kind{"WIPEOUT", nullptr, "pictures (not drawn)"},
    Kind{"OLEFRAME", nullptr, "pictures (not drawn)"},
    Kind{"OLE2FRAME", nullptr, "pictures (not drawn)"},
    Kind{"RAY", nullptr, "lines without an end (not drawn)"},
    Kind{"XLINE", nullptr, "lines without an end (not drawn)"},
    Kind{"VIEWPORT", nullptr, paperThings},
};

} // namespace

const Kind* findKind(std::string_view name) {
    const auto* const found = std::find_if(kinds.begin(), kinds.end(),
                                           [&](const Kind& kind) { return kind.name == name; });
    return found != kinds.end() ? found : nullptr;
}

} // namespace torvik::dxf
