// SPDX-License-Identifier: MIT
#include "prepare/svg/shapes.h"

#include "prepare/arcs.h"
#include "prepare/svg/path_data.h"
#include "prepare/svg/text_reader.h"
#include "prepare/svg/view_box.h"

#include <algorithm>
#include <array>

namespace torvik::svg {
namespace {

std::optional<double> givenLength(pugi::xml_node node, const char* name, const LengthRules& rules,
                                  Along along) {
    return lengthOf(node.attribute(name).value(), rules, rules.whole(along));
}

ShapeStrokes path(pugi::xml_node node, const LengthRules&, const Affine& map) {
    StrokeBuilder builder(map);
    const bool isComplete = drawPathData(node.attribute("d").value(), builder);
    return {builder.take(), true, isComplete};
}

ShapeStrokes roundedRect(const Rectangle& box, double radiusX, double radiusY, const Affine& map) {
    const double right = box.x + box.width;
    const double bottom = box.y + box.height;
    const EllipticalArc corner{radiusX, radiusY, 0, false, true};
    StrokeBuilder builder(map);
    const auto lineTo = [&](Point end) {
        if (distance(end, builder.place()) > 1e-9 * (box.width + box.height))
            builder.lineTo(end);
    };
    builder.moveTo({box.x + radiusX, box.y});
    lineTo({right - radiusX, box.y});
    builder.arcTo(corner, {right, box.y + radiusY});
    lineTo({right, bottom - radiusY});
    builder.arcTo(corner, {right - radiusX, bottom});
    lineTo({box.x + radiusX, bottom});
    builder.arcTo(corner, {box.x, bottom - radiusY});
    lineTo({box.x, box.y + radiusY});
    builder.arcTo(corner, {box.x + radiusX, box.y});
    builder.close();
    return {builder.take()};
}

ShapeStrokes rect(pugi::xml_node node, const LengthRules& rules, const Affine& map) {
    const Rectangle box{lengthAttribute(node, "x", rules, Along::width),
                        lengthAttribute(node, "y", rules, Along::height),
                        lengthAttribute(node, "width", rules, Along::width),
                        lengthAttribute(node, "height", rules, Along::height)};
    if (!(box.width > 0 && box.height > 0))
        return {};
    auto rx = givenLength(node, "rx", rules, Along::width);
    auto ry = givenLength(node, "ry", rules, Along::height);
    if (rx && *rx < 0)
        rx.reset();
    if (ry && *ry < 0)
        ry.reset();
    const double radiusX = std::min(rx.value_or(ry.value_or(0)), box.width / 2);
    const double radiusY = std::min(ry.value_or(rx.value_or(0)), box.height / 2);
    if (radiusX > 0 && radiusY > 0)
        return roundedRect(box, radiusX, radiusY, map);
    StrokeBuilder builder(map);
    builder.moveTo({box.x, box.y});
    builder.lineTo({box.x + box.width, box.y});
    builder.lineTo({box.x + box.width, box.y + box.height});
    builder.lineTo({box.x, box.y + box.height});
    builder.close();
    return {builder.take()};
}

ShapeStrokes ellipseOf(Point centre, double radiusX, double radiusY, const Affine& map) {
    if (!(radiusX > 0 && radiusY > 0))
        return {};
    return {{ellipseStroke(1, map * moved(centre) * scaled(radiusX, radiusY), 0, fullTurn)}};
}

Point centreOf(pugi::xml_node node, const LengthRules& rules) {
    return {lengthAttribute(node, "cx", rules, Along::width),
            lengthAttribute(node, "cy", rules, Along::height)};
}

ShapeStrokes circle(pugi::xml_node node, const LengthRules& rules, const Affine& map) {
    const double radius = lengthAttribute(node, "r", rules, Along::diagonal);
    return ellipseOf(centreOf(node, rules), radius, radius, map);
}

// A radius that is not given is that of the other direction.
ShapeStrokes ellipse(pugi::xml_node node, const LengthRules& rules, const Affine& map) {
    const auto rx = givenLength(node, "rx", rules, Along::width);
    const auto ry = givenLength(node, "ry", rules, Along::height);
    return ellipseOf(centreOf(node, rules), rx.value_or(ry.value_or(0)),
                     ry.value_or(rx.value_or(0)), map);
}

ShapeStrokes line(pugi::xml_node node, const LengthRules& rules, const Affine& map) {
    StrokeBuilder builder(map);
    builder.moveTo({lengthAttribute(node, "x1", rules, Along::width),
                    lengthAttribute(node, "y1", rules, Along::height)});
    builder.lineTo({lengthAttribute(node, "x2", rules, Along::width),
                    lengthAttribute(node, "y2", rules, Along::height)});
    return {builder.take(), false};
}

ShapeStrokes corners(pugi::xml_node node, const Affine& map, bool isClosed) {
    TextReader reader(node.attribute("points").value());
    StrokeBuilder builder(map);
    long count = 0;
    reader.skipBlanks();
    while (!reader.atEnd()) {
        const auto x = reader.takeNumber();
        reader.skipSeparator();
        const auto y = reader.takeNumber();
        reader.skipSeparator();
        if (!x || !y)
            break;
        if (count++ == 0)
            builder.moveTo({*x, *y});
        else
            builder.lineTo({*x, *y});
    }
    if (isClosed)
        builder.close();
    return {builder.take(), count > 2, reader.atEnd()};
}

ShapeStrokes polyline(pugi::xml_node node, const LengthRules&, const Affine& map) {
    return corners(node, map, false);
}

ShapeStrokes polygon(pugi::xml_node node, const LengthRules&, const Affine& map) {
    return corners(node, map, true);
}

struct Shape {
    std::string_view name;
    ShapeMaker make;
};

constexpr std::array<Shape, 7> shapes{{{"path", path},
                                       {"rect", rect},
                                       {"circle", circle},
                                       {"ellipse", ellipse},
                                       {"line", line},
                                       {"polyline", polyline},
                                       {"polygon", polygon}}};

} // namespace

ShapeMaker findShape(std::string_view name) {
    for (const Shape& shape : shapes)
        if (shape.name == name)
            return shape.make;
    return nullptr;
}

double lengthAttribute(pugi::xml_node node, const char* name, const LengthRules& rules,
                       Along along) {
    return givenLength(node, name, rules, along).value_or(0);
}

} // namespace torvik::svg
