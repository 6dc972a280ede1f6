// SPDX-License-Identifier: MIT
// Areas of the plane, bounded by polygons: grown, shrunk, compared. The work is Clipper's. Plotter
// units outside, whole thousandths of them inside.
#pragma once

#include "prepare/strokes.h"

#include <polyclipping/clipper.hpp>
#include <span>
#include <vector>

namespace torvik {

using Corners = std::vector<Point>; // of a closed line, without the closing one

// A piece of an area that hangs together: its outline and those of the holes in it.
struct Patch {
    Corners outline;
    std::vector<Corners> holes;

    bool contains(Point point) const;
};

class Area {
public:
    Area() = default;

    // What the outlines enclose, every second time that they overlap (even-odd).
    static Area enclosedBy(std::span<const Corners> outlines);
    // What a round tool sweeps along lines, closed or not.
    static Area sweptAlong(std::span<const Stroke> chords, double radius, double tolerance);

    // Larger by a distance, smaller by a negative one; corners that grow become round. Curves keep
    // within the tolerance.
    Area grown(double distance, double tolerance) const;
    Area without(const Area& other) const;
    Area within(const Area& other) const;

    double size() const; // square plotter units
    std::vector<Corners> outlines() const;
    std::vector<Patch> patches() const;

private:
    explicit Area(ClipperLib::Paths paths) : m_paths(std::move(paths)) {}

    Area combined(const Area& other, ClipperLib::ClipType how) const;

    ClipperLib::Paths m_paths;
};

// Whether a straight way from one place to another stays inside an area's patch.
bool staysInside(Point from, Point to, std::span<const Corners> boundaries);

} // namespace torvik
