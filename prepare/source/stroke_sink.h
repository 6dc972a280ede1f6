// SPDX-License-Identifier: MIT
// Takes the strokes of a picture or a CAD drawing with their colours and gives them pens.
#pragma once

#include "prepare/source/hpgl_source.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>

namespace torvik {

class StrokeSink {
public:
    // Raises RunTimeError for places too far away where all must be `onPaper` at once.
    StrokeSink(const SourceOptions& options, SourceDrawing& drawing, bool onPaper = true);

    // A pen that is asked for the layer comes before one of the colour, 0xRRGGBB. Raises
    // RunTimeError for too many segments, too.
    void add(std::vector<Stroke> strokes, std::uint32_t rgb, std::string_view layer = {});
    // What is not drawn but can be shown. Too much of it is passed over.
    void leave(std::vector<Stroke> strokes);
    std::size_t count() const { return m_drawing.strokes.size(); }
    // Those that came after the first `count`.
    StrokeExtents extentsSince(std::size_t count) const;

private:
    ColourUse& useOf(std::uint32_t rgb);
    // Where the layer has a pen of its own.
    ColourUse* useOfLayer(std::string_view layer, std::uint32_t rgb);

    const SourceOptions& m_options;
    SourceDrawing& m_drawing;
    bool m_onPaper;
    std::unordered_map<std::uint32_t, std::size_t> m_uses; // places in the report's list
    // By the layers' names in small letters: the pens asked for, and places in the list.
    std::map<std::string, int, std::less<>> m_layerPens;
    std::map<std::string, std::size_t, std::less<>> m_layerUses;
    std::size_t m_segments = 0;
    std::size_t m_leftSegments = 0;
};

void requireOnPaper(const Stroke& stroke);

} // namespace torvik
