// SPDX-License-Identifier: MIT
#include "prepare/dxf/polylines.h"

#include <algorithm>
#include <utility>

namespace torvik::dxf {
namespace {

constexpr int xCode = 10;
constexpr int yCode = 20;
constexpr int bulgeCode = 42;
constexpr int closed = 1;

struct Corner {
    Point place;
    double bulge = 0; // of what leads on
};

std::vector<Stroke> strokesThrough(std::span<const Corner> corners, bool isClosed) {
    if (corners.empty())
        return {};
    Stroke stroke{1, corners.front().place, {}};
    stroke.segments.reserve(corners.size());
    const auto add = [&](const Corner& from, const Corner& to) {
        if (from.place != to.place)
            stroke.segments.push_back(bulgeSegment(from.place, to.place, from.bulge));
    };
    for (std::size_t i = 1; i < corners.size(); ++i)
        add(corners[i - 1], corners[i]);
    if (isClosed)
        add(corners.back(), corners.front());
    return {std::move(stroke)};
}

bool isLevel(std::span<const Entity> corners) {
    return std::all_of(corners.begin(), corners.end(), [&](const Entity& corner) {
        return corner.height(xCode) == corners.front().height(xCode);
    });
}

} // namespace

Drawn lightPolylineOf(const Entity& entity) {
    std::vector<Corner> corners;
    corners.reserve(entity.groups().size() / 2);
    for (const Group& group : entity.groups()) {
        if (group.code == xCode)
            corners.push_back({{numberOf(group.value), numberOf({})}});
        else if (corners.empty())
            continue;
        else if (group.code == yCode)
            corners.back().place.y = numberOf(group.value);
        else if (group.code == bulgeCode)
            corners.back().bulge = numberOf(group.value);
    }
    return inPlane(entity, strokesThrough(corners, entity.flag(closed)));
}

Drawn polylineOf(const Entity& entity, std::span<const Entity> corners) {
    constexpr int inSpace = 8;
    constexpr int meshes = 16 | 64;
    constexpr int frameOfCurve = 16; // a corner that only bends the curve
    if (entity.flag(meshes) || (entity.flag(inSpace) && !isLevel(corners)))
        return {{}, false};
    std::vector<Corner> places;
    places.reserve(corners.size());
    for (const Entity& corner : corners)
        if (!corner.flag(frameOfCurve))
            places.push_back({corner.point(xCode), corner.number(bulgeCode, 0)});
    return inPlane(entity, strokesThrough(places, entity.flag(closed)));
}

} // namespace torvik::dxf
