// SPDX-License-Identifier: MIT
// Splines of a DXF drawing, by their control points or by the points that they go through.
#pragma once

#include "prepare/dxf/figures.h"

namespace torvik::dxf {

Drawn splineOf(const Entity& entity);

} // namespace torvik::dxf
