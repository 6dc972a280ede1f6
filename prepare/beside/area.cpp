// SPDX-License-Identifier: MIT
#include "prepare/beside/area.h"

#include "base/inside_polygon.h"

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

namespace cl = ClipperLib;

constexpr double scale = 1000;

cl::IntPoint toInt(Point p) {
    return {std::llround(p.x * scale), std::llround(p.y * scale)};
}

Point fromInt(const cl::IntPoint& p) {
    return {static_cast<double>(p.X) / scale, static_cast<double>(p.Y) / scale};
}

cl::Path pathOf(std::span<const Point> corners) {
    cl::Path path;
    path.reserve(corners.size());
    for (const Point& corner : corners)
        path.push_back(toInt(corner));
    return path;
}

Corners cornersOf(const cl::Path& path) {
    Corners corners;
    corners.reserve(path.size());
    for (const cl::IntPoint& point : path)
        corners.push_back(fromInt(point));
    return corners;
}

cl::ClipperOffset offsetter(double tolerance) {
    constexpr double noMiter = 2;
    return cl::ClipperOffset(noMiter, tolerance * scale);
}

void addPatches(const cl::PolyNode& node, std::vector<Patch>& patches) {
    for (const cl::PolyNode* const outer : node.Childs) {
        Patch patch{cornersOf(outer->Contour), {}};
        for (const cl::PolyNode* const hole : outer->Childs) {
            patch.holes.push_back(cornersOf(hole->Contour));
            addPatches(*hole, patches);
        }
        patches.push_back(std::move(patch));
    }
}

} // namespace

bool Patch::contains(Point point) const {
    return isInsidePolygon(outline, point) &&
           std::none_of(holes.begin(), holes.end(),
                        [&](const Corners& hole) { return isInsidePolygon(hole, point); });
}

Area Area::enclosedBy(std::span<const Corners> outlines) {
    cl::Clipper clipper;
    for (const Corners& outline : outlines)
        clipper.AddPath(pathOf(outline), cl::ptSubject, true);
    cl::Paths paths;
    clipper.Execute(cl::ctUnion, paths, cl::pftEvenOdd, cl::pftEvenOdd);
    return Area(std::move(paths));
}

Area Area::sweptAlong(std::span<const Stroke> chords, double radius, double tolerance) {
    auto offset = offsetter(tolerance);
    for (const Stroke& stroke : chords) {
        cl::Path path{toInt(stroke.start)};
        for (const Segment& segment : stroke.segments)
            path.push_back(toInt(segment.end));
        offset.AddPath(path, cl::jtRound, cl::etOpenRound);
    }
    cl::Paths paths;
    offset.Execute(paths, radius * scale);
    return Area(std::move(paths));
}

Area Area::grown(double distance, double tolerance) const {
    auto offset = offsetter(tolerance);
    offset.AddPaths(m_paths, cl::jtRound, cl::etClosedPolygon);
    cl::Paths paths;
    offset.Execute(paths, distance * scale);
    return Area(std::move(paths));
}

Area Area::combined(const Area& other, cl::ClipType how) const {
    cl::Clipper clipper;
    clipper.AddPaths(m_paths, cl::ptSubject, true);
    clipper.AddPaths(other.m_paths, cl::ptClip, true);
    cl::Paths paths;
    clipper.Execute(how, paths, cl::pftNonZero, cl::pftNonZero);
    return Area(std::move(paths));
}

Area Area::without(const Area& other) const {
    return combined(other, cl::ctDifference);
}

Area Area::within(const Area& other) const {
    return combined(other, cl::ctIntersection);
}

double Area::size() const {
    double sum = 0;
    for (const cl::Path& path : m_paths)
        sum += cl::Area(path);
    return sum / (scale * scale);
}

std::vector<Corners> Area::outlines() const {
    std::vector<Corners> outlines;
    outlines.reserve(m_paths.size());
    for (const cl::Path& path : m_paths)
        outlines.push_back(cornersOf(path));
    return outlines;
}

std::vector<Patch> Area::patches() const {
    cl::Clipper clipper;
    clipper.AddPaths(m_paths, cl::ptSubject, true);
    cl::PolyTree tree;
    clipper.Execute(cl::ctUnion, tree, cl::pftNonZero, cl::pftNonZero);
    std::vector<Patch> patches;
    addPatches(tree, patches);
    return patches;
}

bool staysInside(Point from, Point to, std::span<const Corners> boundaries) {
    const Point step = to - from;
    for (const Corners& boundary : boundaries) {
        Point before = boundary.back();
        for (const Point& corner : boundary) {
            const double a = cross(step, before - from);
            const double b = cross(step, corner - from);
            const Point edge = corner - before;
            const double c = cross(edge, from - before);
            const double d = cross(edge, to - before);
            if (((a > 0) != (b > 0)) && ((c > 0) != (d > 0)))
                return false;
            before = corner;
        }
    }
    return true;
}

} // namespace torvik
