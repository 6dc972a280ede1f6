// SPDX-License-Identifier: MIT
// Keeps count of a picture's shapes and texts, so that none vanishes unseen: each is drawn or left
// out for a reason that the report names.
#pragma once

#include "prepare/source/source_report.h"
#include "prepare/svg/document.h"

#include <unordered_set>

namespace torvik::svg {

// Reasons, as the report names them.
inline constexpr std::string_view hiddenShapes = "hidden shapes";
inline constexpr std::string_view unpaintedShapes = "shapes without a visible line or fill";
inline constexpr std::string_view emptyShapes = "shapes of no size";
inline constexpr std::string_view unusedShapes = "shapes that are kept for use and not used";
inline constexpr std::string_view helperShapes =
    "shapes of clip paths, masks, patterns and markers";
inline constexpr std::string_view unchosenShapes = "shapes of a switch that another one stands for";
inline constexpr std::string_view foreignShapes = "shapes within elements that are not drawn";
inline constexpr std::string_view misplacedShapes = "shapes within texts, uses and other shapes";
inline constexpr std::string_view missingShapes = "uses of shapes that the file does not hold";
inline constexpr std::string_view undrawnTexts = "texts without letters";

class ShapeTally {
public:
    ShapeTally(const Document& document, SourceReport& report)
        : m_document(document), m_report(report) {}

    // A shape's turn has come. What becomes of it is told next.
    void see(pugi::xml_node shape);
    void draw() { ++m_drawn; }
    void leave(std::string_view reason);
    // Of what the report counts elsewhere, as texts that are not drawn.
    void leaveCounted() { ++m_left; }

    // Counts the shapes whose turn never came. Raises RunTimeError where the sums differ, which is
    // a fault of this program.
    void finish();

private:
    const Document& m_document;
    SourceReport& m_report;
    std::unordered_set<const pugi::xml_node_struct*> m_seen;
    long m_read = 0; // again at each use
    long m_drawn = 0;
    long m_left = 0;
};

} // namespace torvik::svg
