// SPDX-License-Identifier: MIT
#include "check/program_reader.h"

#include "base/picture.h"
#include "check/lines.h"
#include "check/opening_lines.h"
#include "check/statement_reader.h"

#include <charconv>

namespace torvik::check {
namespace {

constexpr int lastLineNumber = 9999; // 1 comes next

class ProgramReader {
public:
    ProgramReader(const Target& target, std::size_t bytes, Findings& findings)
        : m_findings(findings) {
        constexpr std::size_t usualBytes = 24; // of a line
        m_program.target = &target;
        m_program.statements.reserve(bytes / usualBytes);
    }

    void take(const Line& line) {
        m_program.lines = line.number;
        m_isOpening = false;
        if (!takeOpening(line) && !takeComment(line))
            takeStatement(line);
        if (!line.isEnded || (holdsControlCharacter(line.text) && !m_isOpening))
            m_findings.add(Kind::lineEnd, line.number);
    }

    Program finish() {
        if (m_openingLine < target().openingLines.size())
            findOpening(m_program.lastLine());
        return std::move(m_program);
    }

private:
    const Target& target() const { return *m_program.target; }

    void findOpening(std::uint32_t line) {
        const std::string_view pattern = target().openingLines[m_openingLine];
        const auto place = pattern.find('#');
        const std::string shown = '"' + shownText(pattern.substr(0, place)) + '"';
        m_findings.add(
            Kind::opening, line,
            {(place == pattern.npos ? shown : shown + " and the program number") + " is missing"});
    }

    bool isComment(const Line& line) const {
        return target().commentOpener != 0 && line.text.starts_with(target().commentOpener);
    }

    // A line that is changed is passed over; one that is missing is not.
    bool takeOpening(const Line& line) {
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
    bool takeComment(const Line& line) {
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

    void takeStatement(const Line& line) {
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
    void keep(const Statement& statement) {
        auto& kept = m_program.statements;
        const bool isNone = statement.meaning == Meaning::unknown;
        if (!isNone || kept.empty() || kept.back().meaning != Meaning::unknown)
            kept.push_back(statement);
    }

    std::string_view withoutNumber(const Line& line) {
        const int expected = m_lastNumber == lastLineNumber ? 1 : m_lastNumber + 1;
        const std::size_t digits = lineNumberDigits(line.text);
        const std::string_view number = line.text.substr(0, digits == 0 ? 0 : digits + 1);
        std::string_view rest = line.text.substr(number.size());
        if (number != "N" + formatInteger(expected)) {
            m_findings.add(Kind::lineNumber, line.number, {formatInteger(expected)});
            countFrom(number);
        } else {
            m_lastNumber = expected;
        }
        if (digits > 0 && rest.starts_with(' '))
            rest.remove_prefix(1);
        return rest;
    }

    // The line that comes next is held against this one's own number.
    void countFrom(std::string_view number) {
        if (number.empty())
            return;
        int found = 0;
        std::from_chars(number.data() + 1, number.data() + number.size(), found);
        if (found >= 1 && found <= lastLineNumber)
            m_lastNumber = found;
    }

    Findings& m_findings;
    Program m_program;
    std::size_t m_openingLine = 0; // the one that comes next
    bool m_isOpening = false;      // this line was one
    int m_lastNumber = 0;
};

} // namespace

Program readProgram(const Target& target, std::string_view text, Findings& findings) {
    ProgramReader reader(target, text.size(), findings);
    visitLines(text, [&](const Line& line) { reader.take(line); });
    return reader.finish();
}

} // namespace torvik::check
