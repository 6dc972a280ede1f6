// SPDX-License-Identifier: MIT
// What the windows of the finished piece are given: the program as it was written, its moves, the
// billet, the tools. mm; the billet's surface is Z 0. What is not known is NaN or empty.
#pragma once

#include "check/move.h"
#include "check/pace.h"
#include "sweep/cuts.h"

#include <QPolygonF>
#include <QString>

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace torvik {

struct CutTool {
    double diameter = 0; // mm
    QString name;        // "Slot drill"
};

// What is cut from a line on, until the next group: "Black – cut".
struct CutGroup {
    std::uint32_t firstLine = 1;
    QString name;
};

struct CutBillet {
    double lowX = 0;
    double lowY = 0;
    double length = check::unknown; // X
    double width = check::unknown;  // Y
    double depth = check::unknown;  // Z

    bool isKnown() const { return length > 0 && width > 0; }
};

struct CutPiece {
    QString name;        // of the part or the file, for the window's title
    std::string program; // its bytes
    check::Moves moves;
    check::Pace pace; // of the machine that it is for
    CutBillet billet;
    std::map<int, CutTool> tools; // by number
    std::vector<CutGroup> groups; // by line, ascending; may be empty
    std::vector<QPolygonF> uncut; // paths that are not machined, as points

    sweep::Diameters diameters() const;
    // The number of the tool that works at a move; 0: none yet.
    int toolAt(std::size_t move) const;
    double radiusOf(int tool) const; // mm
    // "T1 6.0 mm Slot drill", empty without a tool.
    QString toolText(int tool) const;
    // The name of the group that a line belongs to, or nothing.
    QString groupAt(std::uint32_t line) const;
};

// The piece of a program's text alone: billet and tools come from its header, or from the text
// beside it. Without moves where no control knows the program.
CutPiece pieceOfProgram(std::string program, std::string_view sideText = {});

} // namespace torvik
