// SPDX-License-Identifier: MIT
// Reads a program's text: opening lines, header, statements. Finds what is wrong with single lines
// and goes on behind it: line ends, line numbers, unknown statements, numbers, comments, opening
// lines.
#pragma once

#include "check/findings.h"
#include "check/machine.h"
#include "check/program.h"

#include <stop_token>
#include <string>
#include <string_view>

namespace torvik::check {

struct Line;

// Takes the text piece by piece; a piece may end within a line.
class ProgramReader {
public:
    // About as many lines as `lines` will come. The findings live as long as the reader.
    ProgramReader(const Target& target, std::size_t lines, Findings& findings,
                  std::stop_token stop = {});

    // Raises Cancelled where `stop` asks for it.
    void take(std::string_view bytes);
    Program finish();

private:
    const Target& target() const { return *m_program.target; }
    bool isComment(const Line& line) const;

    void takeLine(std::string_view text);
    bool takeOpening(const Line& line);
    bool takeComment(const Line& line);
    void takeStatement(const Line& line);
    void keep(const Statement& statement);
    std::string_view withoutNumber(const Line& line);
    void findOpening(std::uint32_t line);

    Findings& m_findings;
    std::stop_token m_stop;
    Program m_program;
    Machine m_machine;
    std::string m_begun;           // a line whose end has not come
    std::size_t m_openingLine = 0; // the one that comes next
    bool m_isOpening = false;      // this line was one
    int m_lastNumber = 0;
};

// About how many lines a text has.
std::size_t linesIn(std::string_view text);

// A whole text. Raises Cancelled where `stop` asks for it.
Program readProgram(const Target& target, std::string_view text, Findings& findings,
                    const std::stop_token& stop = {});

} // namespace torvik::check
