// SPDX-License-Identifier: MIT
// Shapes, texts and pictures made of dots.
#include "prepare/svg/paint_colour.h"
#include "prepare/svg/shapes.h"
#include "prepare/svg/stroke_builder.h"
#include "prepare/svg/svg_names.h"
#include "prepare/svg/text_layout.h"
#include "prepare/svg/walker.h"

#include <algorithm>
#include <bit>
#include <cmath>

namespace torvik::svg {
namespace {

bool takesMarkers(std::string_view name) {
    return name == "path" || name == "line" || name == "polyline" || name == "polygon";
}

bool hasSize(const Affine& map) {
    return std::isfinite(map.determinant()) && map.determinant() != 0;
}

} // namespace

// The shape's turn; false where it is left out for what is around it.
bool Walker::seeVisible(pugi::xml_node node, const Scope& scope) {
    m_tally.see(node);
    if (!scope.style.isVisible)
        m_tally.leave(hiddenShapes);
    else if (!hasSize(scope.map))
        m_tally.leave(emptyShapes);
    else
        return true;
    return false;
}

// The line's colour, else that of the fill.
std::optional<Walker::ShapeColour> Walker::colourFor(const Style& style, bool isArea) {
    const auto line = seenColour(style.stroke, style.strokeOpacity, style, m_document);
    const auto fill =
        isArea ? seenColour(style.fill, style.fillOpacity, style, m_document) : std::nullopt;
    if (fill)
        m_report.lose(Loss::fill);
    if (line && style.isDashed)
        m_report.lose(Loss::dashes);
    const auto seen = line ? line : fill;
    if (!seen)
        return {};
    if (seen->isStandIn)
        m_report.lose(Loss::effects);
    return ShapeColour{seen->rgb, line.has_value()};
}

void Walker::drawShape(pugi::xml_node node, const Scope& scope) {
    if (!seeVisible(node, scope))
        return;
    const std::string_view name = svgName(node);
    ShapeStrokes shape = findShape(name)(node, scope.rules, scope.map);
    if (!shape.isComplete)
        m_report.lose(Loss::malformed);
    if (shape.strokes.empty()) {
        m_tally.leave(emptyShapes);
        return;
    }
    const auto colour = colourFor(scope.style, shape.isArea);
    if (!colour) {
        m_tally.leave(unpaintedShapes);
        return;
    }
    if (takesMarkers(name))
        m_report.lose(Loss::symbols, std::popcount(static_cast<unsigned>(scope.style.markers)));
    if (!colour->isOfLine)
        std::for_each(shape.strokes.begin(), shape.strokes.end(), closeArea);
    m_sink.add(std::move(shape.strokes), colour->rgb);
    m_tally.draw();
}

void Walker::drawText(pugi::xml_node node, const Scope& scope) {
    if (!m_options.texts) {
        m_tally.see(node);
        m_tally.leaveCounted();
        m_report.lose(Loss::text);
        showText(node, scope);
        return;
    }
    if (!seeVisible(node, scope))
        return;
    const TextLetters text = lettersOf(node, scope.style, scope.rules, m_document);
    m_report.lose(Loss::text, text.undrawn);
    bool isDrawn = false;
    for (TextRun& run : runsOf(text, scope.map)) {
        const Style& style = text.styles[run.style];
        auto colour = seenColour(style.stroke, style.strokeOpacity, style, m_document);
        if (!colour)
            colour = seenColour(style.fill, style.fillOpacity, style, m_document);
        if (!colour || !style.isVisible || run.strokes.empty())
            continue;
        m_report.unknownLetters += run.unknownLetters;
        m_sink.add(std::move(run.strokes), colour->rgb);
        isDrawn = true;
    }
    if (isDrawn) {
        ++m_report.texts;
        m_tally.draw();
    } else {
        m_tally.leave(undrawnTexts);
    }
}

// Where the text would have stood.
void Walker::showText(pugi::xml_node node, const Scope& scope) {
    if (!scope.style.isVisible || !hasSize(scope.map))
        return;
    for (TextRun& run : runsOf(lettersOf(node, scope.style, scope.rules, m_document), scope.map))
        m_sink.leave(std::move(run.strokes));
}

void Walker::drawPicture(pugi::xml_node node, const Scope& scope) {
    m_report.lose(Loss::pictures);
    if (scope.style.isVisible && hasSize(scope.map))
        m_sink.leave(findShape("rect")(node, scope.rules, scope.map).strokes);
    leaveAll(node, foreignShapes);
}

void Walker::drawFlow(pugi::xml_node node, const Scope&) {
    m_report.lose(Loss::text);
    leaveAll(node, foreignShapes);
}

} // namespace torvik::svg
