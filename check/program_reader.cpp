// SPDX-License-Identifier: MIT
#include "check/program_reader.h"

#include "base/picture.h"
#include "base/stopping.h"
#include "check/lines.h"
#include "check/opening_lines.h"
#include "check/statement_reader.h"

#include <utility>

namespace torvik::check {
namespace {

constexpr int lastLineNumber = 9999; // 1 comes next

// Of digits; 0 where there are none, or too many.
int lineNumberOf(std::string_view digits) {
    constexpr std::size_t most = 9;
    int number = 0;
    if (digits.size() <= most)
        for (const char digit : digits)
            number = number * 10 + (digit - '0');
    return number;
}

} // namespace

ProgramReader::ProgramReader(const Target& target, std::size_t lines, Findings& findings,
                             std::stop_token stop)
    : m_findings(findings), m_stop(std::move(stop)), m_machine(lines) {
    m_program.target = &target;
    m_program.statements.reserve(lines);
}

void ProgramReader::take(std::string_view bytes) {
    while (!bytes.empty()) {
        const auto feed = bytes.find('\n');
        if (feed == bytes.npos) {
            m_begun += bytes;
            return;
        }
        const std::string_view line = bytes.substr(0, feed + 1);
        bytes.remove_prefix(feed + 1);
        if (m_begun.empty()) {
            takeLine(line);
        } else {
            takeLine(m_begun += line);
            m_begun.clear();
        }
    }
}

Program ProgramReader::finish() {
    if (!m_begun.empty())
        takeLine(m_begun);
    if (m_openingLine < target().openingLines.size())
        findOpening(m_program.lastLine());
    m_program.moves = m_machine.finish();
    return std::move(m_program);
}

void ProgramReader::takeLine(std::string_view text) {
    endIfStopped(m_stop);
    const Line line = lineOf(++m_program.lines, text);
    m_isOpening = false;
    if (!takeOpening(line) && !takeComment(line))
        takeStatement(line);
    if (!line.isEnded || (holdsControlCharacter(line.text) && !m_isOpening))
        m_findings.add(Kind::lineEnd, line.number);
}

void ProgramReader::findOpening(std::uint32_t line) {
    const std::string_view pattern = target().openingLines[m_openingLine];
    const auto place = pattern.find('#');
    const std::string shown = '"' + shownText(pattern.substr(0, place)) + '"';
    m_findings.add(
        Kind::opening, line,
        {(place == pattern.npos ? shown : shown + " and the program number") + " is missing"});
}

bool ProgramReader::isComment(const Line& line) const {
    return target().commentOpener != 0 && line.text.starts_with(target().commentOpener);
}

// A line that is changed is passed over; one that is missing is not.
bool ProgramReader::takeOpening(const Line& line) {
    const auto patterns = target().openingLines;
    if (m_openingLine == patterns.size())
        return false;
    for (std::size_t i = m_openingLine; i < patterns.size(); ++i) {
        if (!isOpeningLine(patterns[i], line.text))
            continue;
        if (i > m_openingLine)
            findOpening(line.number);
        m_openingLine = i + 1;
        m_isOpening = true;
        return true;
    }
    findOpening(line.number);
    const bool isLater = isComment(line) || lineNumberDigits(line.text) > 0;
    m_openingLine = isLater ? patterns.size() : m_openingLine + 1;
    return !isLater;
}

// A comment stands before the first statement only.
bool ProgramReader::takeComment(const Line& line) {
    if (!m_program.statements.empty() || !isComment(line))
        return false;
    std::string_view text = line.text.substr(1);
    if (const char closer = target().commentCloser; closer != 0) {
        const bool isClosed = text.ends_with(closer);
        if (isClosed)
            text.remove_suffix(1);
        if (!isClosed || text.find_first_of("()") != text.npos)
            m_findings.add(Kind::comment, line.number);
    }
    readHeaderLine(text, m_program.header);
    return true;
}

void ProgramReader::takeStatement(const Line& line) {
    if (line.text == "%") {
        Statement statement;
        statement.line = line.number;
        statement.meaning = Meaning::percent;
        keep(statement);
    } else {
        keep(readStatement(target(), withoutNumber(line), line.number, m_findings));
    }
}

// A run of lines that are no statements is one: a file that is no program may have millions.
void ProgramReader::keep(const Statement& statement) {
    auto& kept = m_program.statements;
    const bool isNone = statement.meaning == Meaning::unknown;
    if (isNone && !kept.empty() && kept.back().meaning == Meaning::unknown)
        return;
    kept.push_back({statement.line, statement.meaning});
    m_machine.take(statement);
}

// What is behind the number; the line that comes next is held against this one's own.
std::string_view ProgramReader::withoutNumber(const Line& line) {
    const int expected = m_lastNumber == lastLineNumber ? 1 : m_lastNumber + 1;
    const std::size_t size = lineNumberDigits(line.text);
    const std::string_view digits = line.text.substr(size == 0 ? 0 : 1, size);
    std::string_view rest = line.text.substr(size == 0 ? 0 : size + 1);
    const int found = lineNumberOf(digits);
    if (found != expected || digits[0] == '0')
        m_findings.add(Kind::lineNumber, line.number, {formatInteger(expected)});
    if (found >= 1 && found <= lastLineNumber)
        m_lastNumber = found;
    if (size > 0 && rest.starts_with(' '))
        rest.remove_prefix(1);
    return rest;
}

std::size_t linesIn(std::string_view text) {
    constexpr std::size_t usualBytes = 24; // of a line
    return text.size() / usualBytes;
}

Program readProgram(const Target& target, std::string_view text, Findings& findings,
                    const std::stop_token& stop) {
    ProgramReader reader(target, linesIn(text), findings, stop);
    reader.take(text);
    return reader.finish();
}

} // namespace torvik::check
