// SPDX-License-Identifier: MIT
// Polylines of a DXF drawing, the light ones and the old ones, with arcs between their corners.
#pragma once

#include "prepare/dxf/figures.h"

#include <span>

namespace torvik::dxf {

Drawn lightPolylineOf(const Entity& entity);
// The old form, whose corners are things of their own.
Drawn polylineOf(const Entity& entity, std::span<const Entity> corners);

} // namespace torvik::dxf
