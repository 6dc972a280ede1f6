// SPDX-License-Identifier: MIT
#include "prepare/source/stroke_sink.h"

#include "base/errors.h"
#include "base/text.h"
#include "prepare/source/pen_colours.h"
#include "prepare/source/stroke_recorder.h"

#include <span>
#include <utility>

namespace torvik {
namespace {} // namespace

void requireOnPaper(const Stroke& stroke) {
    requireOnPaper(stroke.start);
    for (const Segment& segment : stroke.segments) {
        requireOnPaper(segment.end);
        if (!isLine(segment))
            requireOnPaper(segment.first);
        if (segment.kind == SegmentKind::curve)
            requireOnPaper(segment.second);
    }
}

StrokeSink::StrokeSink(const SourceOptions& options, SourceDrawing& drawing, bool onPaper)
    : m_options(options), m_drawing(drawing), m_onPaper(onPaper) {
    for (const auto& [name, pen] : options.pens)
        if (name.starts_with(layerMark))
            m_layerPens[lowered(std::string_view(name).substr(layerMark.size()))] = pen;
}

void StrokeSink::add(std::vector<Stroke> strokes, std::uint32_t rgb, std::string_view layer) {
    const bool byLayer = m_options.byLayer || !m_layerPens.empty();
    ColourUse* const ofLayer = byLayer && !layer.empty() ? useOfLayer(layer, rgb) : nullptr;
    ColourUse& use = ofLayer != nullptr ? *ofLayer : useOf(rgb);
    for (Stroke& stroke : strokes) {
        if (m_onPaper)
            requireOnPaper(stroke);
        m_segments += std::max<std::size_t>(stroke.segments.size(), 1);
        if (m_segments > m_options.segmentLimit)
            throw RunTimeError("the drawing has more than " +
                               std::to_string(m_options.segmentLimit) + " lines, arcs and curves");
        stroke.pen = use.pen;
        ++use.strokes;
        m_drawing.strokes.push_back(std::move(stroke));
    }
}

void StrokeSink::leave(std::vector<Stroke> strokes) {
    for (Stroke& stroke : strokes) {
        m_leftSegments += std::max<std::size_t>(stroke.segments.size(), 1);
        if (m_leftSegments <= m_options.segmentLimit)
            m_drawing.leftOut.push_back(std::move(stroke));
    }
}

ColourUse& StrokeSink::useOf(std::uint32_t rgb) {
    auto& uses = m_drawing.report.colours;
    const auto [at, isNew] = m_uses.emplace(rgb, uses.size());
    if (isNew) {
        const std::string name = colourName(rgb);
        const auto wanted = m_options.pens.find(name);
        uses.push_back(
            {name, wanted != m_options.pens.end() ? wanted->second : nearestPen(rgb), 0});
    }
    return uses[at->second];
}

ColourUse* StrokeSink::useOfLayer(std::string_view layer, std::uint32_t rgb) {
    const std::string key = lowered(layer);
    const auto wanted = m_layerPens.find(key);
    if (wanted == m_layerPens.end() && !m_options.byLayer)
        return nullptr;
    auto& uses = m_drawing.report.colours;
    const auto [at, isNew] = m_layerUses.emplace(key, uses.size());
    if (isNew)
        uses.push_back({std::string(layerMark) + std::string(layer),
                        wanted != m_layerPens.end() ? wanted->second : nearestPen(rgb), 0});
    return &uses[at->second];
}

StrokeExtents StrokeSink::extentsSince(std::size_t count) const {
    return extentsOf(std::span(m_drawing.strokes).subspan(count));
}

} // namespace torvik
