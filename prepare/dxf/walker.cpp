// SPDX-License-Identifier: MIT
#include "prepare/dxf/walker.h"

#include "base/errors.h"
#include "prepare/dxf/kinds.h"
#include "prepare/dxf/plane.h"
#include "prepare/dxf/polylines.h"
#include "prepare/dxf/texts.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace torvik::dxf {
namespace {

constexpr std::size_t deepestUse = 100;

bool isFinite(Point p) {
    return std::isfinite(p.x) && std::isfinite(p.y);
}

bool isFinite(const Stroke& stroke) {
    return isFinite(stroke.start) &&
           std::all_of(stroke.segments.begin(), stroke.segments.end(), [](const Segment& segment) {
               return isFinite(segment.end) && isFinite(segment.first) &&
                      isFinite(segment.second) && std::isfinite(segment.sweep);
           });
}

// None where one of them is not finite.
std::vector<Stroke> mappedAll(std::vector<Stroke> strokes, const Affine& map) {
    for (Stroke& stroke : strokes)
        stroke = mapped(stroke, map);
    if (!std::all_of(strokes.begin(), strokes.end(),
                     [](const Stroke& stroke) { return isFinite(stroke); }))
        strokes.clear();
    return strokes;
}

std::size_t bytesOf(std::span<const Entity> entities) {
    return std::accumulate(entities.begin(), entities.end(), std::size_t{0},
                           [](std::size_t sum, const Entity& one) { return sum + one.size(); });
}

bool isText(std::string_view kind) {
    return kind == "TEXT" || kind == "MTEXT" || kind == "ATTRIB";
}

// The things that belong to one before them, up to the mark of their end.
std::span<const Entity> partsAfter(std::span<const Entity> entities, std::string_view part) {
    const auto end = std::find_if(entities.begin(), entities.end(),
                                  [&](const Entity& entity) { return entity.kind() != part; });
    return entities.first(static_cast<std::size_t>(end - entities.begin()));
}

// Where a block comes to, once or several times in rows and columns.
class Placing {
public:
    Placing(const Entity& use, Point base)
        : m_place(moved(use.point(placeCode)) * turned(use.number(turnCode, 0))),
          m_size(scaled(use.number(xScaleCode, 1), use.number(yScaleCode, 1)) * moved(base * -1)),
          m_step{use.number(columnStepCode, 0), use.number(rowStepCode, 0)} {}

    Affine at(int column, int row) const {
        return m_place * moved({column * m_step.x, row * m_step.y}) * m_size;
    }

private:
    static constexpr int placeCode = 10;
    static constexpr int xScaleCode = 41;
    static constexpr int yScaleCode = 42;
    static constexpr int columnStepCode = 44;
    static constexpr int rowStepCode = 45;
    static constexpr int turnCode = 50;

    Affine m_place;
    Affine m_size;
    Point m_step;
};

} // namespace

void Walker::draw(const Affine& map) {
    drawAll(m_document.entities(), {map, Style{}});
}

void Walker::drawAll(std::span<const Entity> entities, const Surroundings& around) {
    for (std::size_t i = 0; i < entities.size(); ++i) {
        const Entity& entity = entities[i];
        const bool isUse = entity.kind() == "INSERT";
        const std::string_view part = isUse                         ? "ATTRIB"
                                      : entity.kind() == "POLYLINE" ? "VERTEX"
                                                                    : "";
        const auto parts =
            part.empty() ? std::span<const Entity>() : partsAfter(entities.subspan(i + 1), part);
        countThing(entity.size() + bytesOf(parts));
        if (entity.kind() != "SEQEND")
            drawOne(entity, parts, around);
        i += parts.size();
    }
}

void Walker::drawOne(const Entity& entity, std::span<const Entity> parts,
                     const Surroundings& around) {
    const std::string_view kind = entity.kind();
    const Kind* const known = findKind(kind);
    const bool isUse = kind == "INSERT";
    const bool isPolyline = kind == "POLYLINE";
    if (known == nullptr && !isUse && !isPolyline && !isText(kind)) {
        ++m_report.unknown[std::string(kind)];
        return;
    }
    ++m_report.instructions[std::string(kind)];
    const Style style = styleOf(entity, m_document, around.style);
    if (isLeftOut(entity, style))
        return;
    if (isUse)
        drawUse(entity, parts, {around.map, style});
    else if (isText(kind))
        drawText(entity, style, around.map);
    else if (isPolyline)
        add(polylineOf(entity, parts), style, around.map);
    else if (known->draw == nullptr) {
        leave(known->reason);
        if (kind == "DIMENSION")
            showDimension(entity, {around.map, style});
    } else
        add(known->draw(entity), style, around.map);
}

bool Walker::isLeftOut(const Entity& entity, const Style& style) {
    constexpr int hiddenCode = 60;
    constexpr int paperCode = 67;
    if (entity.integer(paperCode) != 0)
        leave(paperThings);
    else if (!style.isOnShownLayer)
        leave(hiddenLayers);
    else if (entity.integer(hiddenCode) != 0)
        leave(hiddenThings);
    else
        return false;
    return true;
}

void Walker::drawUse(const Entity& entity, std::span<const Entity> texts,
                     const Surroundings& around) {
    constexpr int unseen = 1;
    for (const Entity& text : texts) {
        const Style style = styleOf(text, m_document, around.style);
        if (text.flag(unseen))
            leave(hiddenThings);
        else if (!isLeftOut(text, style))
            drawText(text, style, around.map);
    }
    const Block* const block = m_document.findBlock(entity.name(nameCode));
    if (block == nullptr || block->isElsewhere)
        leave(missingBlocks);
    else
        drawBlock(entity, *block, around);
}

void Walker::drawBlock(const Entity& use, const Block& block, const Surroundings& around) {
    constexpr int columnsCode = 70;
    constexpr int rowsCode = 71;
    const auto plane = planeOf(use);
    if (!plane) {
        leave(tiltedThings);
        return;
    }
    if (std::find(m_inside.begin(), m_inside.end(), &block) != m_inside.end())
        throw RunTimeError("the block \"" + utf8Of(block.name) + "\" uses itself without end");
    if (m_inside.size() >= deepestUse)
        throw RunTimeError("its blocks use one another more than " + std::to_string(deepestUse) +
                           " deep");
    m_inside.push_back(&block);
    const Placing placing(use, block.base);
    const Affine lying = around.map * *plane;
    const int columns = std::max(use.integer(columnsCode, 1), 1);
    const int rows = std::max(use.integer(rowsCode, 1), 1);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            countThing(0);
            drawAll(block.entities, {lying * placing.at(column, row), around.style});
        }
    m_inside.pop_back();
}

// Blocks within blocks make a few lines of a file into more than any memory holds. What is large is
// work each time, even where nothing of it can be drawn.
void Walker::countThing(std::size_t bytes) {
    constexpr std::size_t large = 100;
    countThings(1 + bytes / large);
}

void Walker::countThings(std::size_t count) {
    m_things += count;
    if (m_things > m_options.segmentLimit)
        throw RunTimeError("the drawing has more than " + std::to_string(m_options.segmentLimit) +
                           " things, those of its blocks each time they are used");
}

// CAD programs keep what a dimension looks like as a block.
void Walker::showDimension(const Entity& entity, const Surroundings& around) {
    const Block* const block = m_document.findBlock(entity.name(nameCode));
    if (block == nullptr || m_onlyShows)
        return;
    SourceReport uncounted;
    Walker shows(m_document, m_options, uncounted, m_sink);
    shows.m_onlyShows = true;
    shows.m_things = m_things;
    shows.m_inside = {block};
    shows.drawAll(block->entities, around);
    m_things = shows.m_things;
}

void Walker::drawText(const Entity& entity, const Style& style, const Affine& map) {
    constexpr std::size_t linesOfLetter = 10;
    countThings(lengthOfText(entity) * linesOfLetter);
    DrawnText text = entity.kind() == "MTEXT" ? paragraphOf(entity) : textOf(entity);
    if (!m_options.texts) {
        m_report.lose(Loss::text);
        m_sink.leave(mappedAll(std::move(text.drawn.strokes), map));
        return;
    }
    m_report.unknownLetters += text.unknownLetters;
    if (text.drawn.isFlat && !text.drawn.strokes.empty())
        ++m_report.texts;
    add(std::move(text.drawn), style, map);
}

void Walker::add(Drawn drawn, const Style& style, const Affine& map) {
    if (!drawn.isFlat) {
        leave(tiltedThings);
        return;
    }
    if (drawn.strokes.empty()) // a text of blanks
        return;
    drawn.strokes = mappedAll(std::move(drawn.strokes), map);
    if (drawn.strokes.empty()) {
        m_report.lose(Loss::malformed);
        return;
    }
    if (m_onlyShows) {
        m_sink.leave(std::move(drawn.strokes));
        return;
    }
    if (drawn.isFilled)
        m_report.lose(Loss::fill);
    if (style.isDashed())
        m_report.lose(Loss::dashes);
    m_sink.add(std::move(drawn.strokes), style.rgb, utf8Of(style.layer));
}

} // namespace torvik::dxf
