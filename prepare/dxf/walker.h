// SPDX-License-Identifier: MIT
// Goes through the things of a DXF drawing, into its blocks as often as they are used, and draws
// each or counts it with the reason.
#pragma once

#include "prepare/affine.h"
#include "prepare/dxf/figures.h"
#include "prepare/dxf/style.h"
#include "prepare/source/stroke_sink.h"

#include <span>

namespace torvik::dxf {

class Walker {
public:
    Walker(const Document& document, const SourceOptions& options, SourceReport& report,
           StrokeSink& sink)
        : m_document(document), m_options(options), m_report(report), m_sink(sink) {}

    // Raises RunTimeError for blocks that use themselves or are used too often.
    void draw(const Affine& map);

private:
    struct Surroundings {
        Affine map;
        Style style;
    };

    void drawAll(std::span<const Entity> entities, const Surroundings& around);
    void drawOne(const Entity& entity, std::span<const Entity> parts, const Surroundings& around);
    void drawUse(const Entity& entity, std::span<const Entity> texts, const Surroundings& around);
    void drawBlock(const Entity& use, const Block& block, const Surroundings& around);
    void showDimension(const Entity& entity, const Surroundings& around);
    void drawText(const Entity& entity, const Style& style, const Affine& map);
    bool isLeftOut(const Entity& entity, const Style& style);
    void add(Drawn drawn, const Style& style, const Affine& map);
    void leave(std::string_view reason) { ++m_report.leftOut[std::string(reason)]; }
    void countThing(std::size_t bytes);
    void countThings(std::size_t count);

    const Document& m_document;
    const SourceOptions& m_options;
    SourceReport& m_report;
    StrokeSink& m_sink;
    std::vector<const Block*> m_inside;
    std::size_t m_things = 0;
    bool m_onlyShows = false; // what is left out, without counting it
};

} // namespace torvik::dxf
