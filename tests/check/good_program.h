// SPDX-License-Identifier: MIT
// A small program in which nothing is to be found: an outline in three passes with a circle beside
// it, then five holes with another tool.
#pragma once

#include "check/check.h"

#include <map>
#include <sstream>
#include <string>
#include <vector>

namespace torvik::check {

// Without line numbers and line ends; line 1 is the first.
inline constexpr const char* goodProgram = R"(%
(Name of Part - Badge)
(Billet Length X - 100mm)
(Billet Width Y - 60mm)
(Billet Depth Z - 6mm)
(First tool - T3 6.0mm Slot drill)
(Second tool - T8 5.0mm Drill)
G54
G97 G94
G58 X0 Y0 Z0
T3 G43 H3
S2000 M3
G0 Z5.00
G0 X10.000 Y10.000
G0 Z2.00
G1 Z-1.00 F2.50
G1 X30.000 Y10.000 F10.00
G1 X30.000 Y30.000 F10.00
G3 X10.000 Y30.000 I-10.000 J0.000 F10.00
G1 X10.000 Y10.000 F10.00
G1 Z-2.00 F2.50
G1 X30.000 Y10.000 F10.00
G1 X30.000 Y30.000 F10.00
G3 X10.000 Y30.000 I-10.000 J0.000 F10.00
G1 X10.000 Y10.000 F10.00
G1 Z-3.00 F2.50
G1 X30.000 Y10.000 F10.00
G1 X30.000 Y30.000 F10.00
G3 X10.000 Y30.000 I-10.000 J0.000 F10.00
G1 X10.000 Y10.000 F10.00
G0 Z5.00
G0 X65.000 Y30.000
G0 Z2.00
G1 Z-3.00 F2.50
G2 X65.000 Y30.000 I-5.000 J0.000 F10.00
G0 Z5.00
G0 Z50.00 M5
G49
M0
T8 G43 H8
S1200 M3
G0 Z5.00
G0 X20.000 Y50.000
G0 Z2.00
G1 Z-2.00 F1.00
G1 Z-4.00 F1.00
G4 P500
G0 Z2.00
G0 Z5.00
G0 X30.000 Y50.000
G0 Z2.00
G1 Z-2.00 F1.00
G1 Z-4.00 F1.00
G4 P500
G0 Z2.00
G0 Z5.00
G0 X40.000 Y50.000
G0 Z2.00
G1 Z-2.00 F1.00
G1 Z-4.00 F1.00
G4 P500
G0 Z2.00
G0 Z5.00
G0 X50.000 Y50.000
G0 Z2.00
G1 Z-2.00 F1.00
G1 Z-4.00 F1.00
G4 P500
G0 Z2.00
G0 Z5.00
G0 X60.000 Y50.000
G0 Z2.00
G1 Z-2.00 F1.00
G1 Z-4.00 F1.00
G4 P500
G0 Z2.00
G0 Z5.00
G0 Z50.00 M5
G49
M30
%
)";

// The good program with some lines, by their numbers, replaced by a text, which may be several
// lines or none (""), and everything numbered that bears no number of its own.
inline std::string changedProgram(const std::map<std::size_t, std::string>& changes) {
    std::istringstream good(goodProgram);
    std::string changed;
    std::size_t number = 0;
    for (std::string line; std::getline(good, line);) {
        const auto change = changes.find(++number);
        const std::string& text = change == changes.end() ? line : change->second;
        changed += text.empty() ? "" : text + "\n";
    }
    std::istringstream lines(changed);
    std::string program;
    int block = 0;
    for (std::string line; std::getline(lines, line);) {
        if (line[0] != '%' && line[0] != '(')
            program += ++block > 0 && line[0] != 'N' ? "N" + std::to_string(block) + " " : "";
        program += line + "\r\n";
    }
    return program;
}

inline std::string changedProgram(std::size_t at, const std::string& text) {
    return changedProgram({{at, text}});
}

// The findings as "KIND LINE", by line.
inline std::vector<std::string> shown(const Report& report, Level atLeast = Level::note) {
    std::vector<std::string> texts;
    for (const Finding& finding : report.findings.byLine())
        if (rowOf(finding.kind).level >= atLeast)
            texts.push_back(std::string(rowOf(finding.kind).name) + " " +
                            std::to_string(finding.line));
    return texts;
}

} // namespace torvik::check
