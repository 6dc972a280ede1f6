// SPDX-License-Identifier: MIT
// Goes through a picture's elements as they are drawn, from the outermost inwards: groups, pictures
// within, what is used, and shapes. What is not drawn is counted. Raises RunTimeError for elements
// that use themselves, for too many uses and for nesting that is too deep.
#pragma once

#include "prepare/source/stroke_sink.h"
#include "prepare/svg/shape_tally.h"
#include "prepare/svg/style.h"
#include "prepare/svg/view_box.h"

namespace torvik::svg {

// What an element takes over from those around it.
struct Scope {
    Affine map;
    Style style;
    LengthRules rules;
};

class Walker {
public:
    Walker(const Document& document, const SourceOptions& options, SourceReport& report,
           StrokeSink& sink)
        : m_document(document), m_options(options), m_report(report), m_sink(sink),
          m_tally(document, report) {}

    // Draws all of the picture and checks that no shape was lost.
    void draw(const Affine& map, const LengthRules& rules);

private:
    using Draw = void (Walker::*)(pugi::xml_node, const Scope&);
    static Draw drawerOf(std::string_view name);
    static bool drawsNoChildren(Draw drawer);

    void walk(pugi::xml_node node, const Scope& around);
    Scope enter(pugi::xml_node node, const Scope& around);
    void countVisit();
    void leaveAll(pugi::xml_node node, std::string_view reason);
    void leaveChildren(pugi::xml_node node, std::string_view reason);

    void drawChildren(pugi::xml_node node, const Scope& scope);
    void drawNested(pugi::xml_node node, const Scope& scope);
    void drawViewport(pugi::xml_node node, const Rectangle& viewport, const Scope& scope);
    void drawSwitch(pugi::xml_node node, const Scope& scope);
    void drawUse(pugi::xml_node node, const Scope& scope);
    void drawUsed(pugi::xml_node node, pugi::xml_node target, const Scope& scope);
    void showText(pugi::xml_node node, const Scope& scope);
    void drawText(pugi::xml_node node, const Scope& scope);
    void drawShape(pugi::xml_node node, const Scope& scope);
    void drawPicture(pugi::xml_node node, const Scope& scope);
    void drawFlow(pugi::xml_node node, const Scope& scope);
    struct ShapeColour {
        std::uint32_t rgb = 0;
        bool isOfLine = false;
    };
    std::optional<ShapeColour> colourFor(const Style& style, bool isArea);
    bool seeVisible(pugi::xml_node node, const Scope& scope);

    const Document& m_document;
    const SourceOptions& m_options;
    SourceReport& m_report;
    StrokeSink& m_sink;
    ShapeTally m_tally;
    std::vector<pugi::xml_node> m_used; // what is being drawn for uses, outermost first
    int m_depth = 0;
    long m_visits = 0; // within uses
};

} // namespace torvik::svg
