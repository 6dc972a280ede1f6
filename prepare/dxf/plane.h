// SPDX-License-Identifier: MIT
// The plane that a thing of a DXF drawing lies in: seen from above, or from below, where left and
// right are changed over.
#pragma once

#include "prepare/affine.h"
#include "prepare/dxf/entity.h"

#include <optional>

namespace torvik::dxf {

// From the thing's own X and Y to the drawing's; none where the plane is tilted.
std::optional<Affine> planeOf(const Entity& entity);

} // namespace torvik::dxf
