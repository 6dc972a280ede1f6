// SPDX-License-Identifier: MIT
#include "check/finders.h"

#include <algorithm>
#include <string>

namespace torvik::check {
namespace {

bool isOneOf(std::span<const Meaning> meanings, Meaning meaning) {
    return std::find(meanings.begin(), meanings.end(), meaning) != meanings.end();
}

class Structure {
public:
    Structure(const Program& program, Findings& findings)
        : m_target(*program.target), m_statements(program.statements),
          m_lastLine(program.lastLine()), m_findings(findings) {}

    void find() {
        const std::size_t body = findOpening();
        const std::size_t ending = findEnding();
        findChanges(body, std::max(body, ending));
    }

private:
    std::string quoted(Meaning meaning) const {
        return '"' + std::string(patternOf(m_target, meaning)) + '"';
    }

    std::string quoted(std::span<const Meaning> meanings) const {
        std::string text;
        for (const Meaning meaning : meanings)
            text += (text.empty() ? "" : " and ") + quoted(meaning);
        return text;
    }

    // Where the body begins.
    std::size_t findOpening() {
        std::size_t at = 0;
        for (const Meaning meaning : m_target.opening) {
            const bool isThere = at < m_statements.size();
            if (isThere && m_statements[at].meaning == meaning) {
                ++at;
                continue;
            }
            m_findings.add(Kind::opening, isThere ? m_statements[at].line : m_lastLine,
                           {quoted(meaning) + " is missing"});
            if (!isThere || !isOneOf(m_target.opening, m_statements[at].meaning))
                break;
        }
        return at;
    }

    // Where the last statements begin.
    std::size_t findEnding() {
        const auto& wanted = m_target.ending;
        std::size_t end = m_statements.size();
        while (end > 0 && !endsProgram(m_statements[end - 1].meaning))
            --end;
        if (end > 0 && end < m_statements.size())
            m_findings.add(Kind::ending, m_statements[end].line, {"lines follow behind it"});
        const std::size_t known = end == 0 ? 1 : wanted.size(); // all are missing: one says it
        const std::uint32_t line = end == 0 ? m_lastLine : m_statements[end - 1].line;
        for (std::size_t i = 0; i < known; ++i) {
            const Meaning meaning = wanted[wanted.size() - 1 - i];
            if (end > 0 && m_statements[end - 1].meaning == meaning)
                --end;
            else
                m_findings.add(Kind::ending, line, {quoted(meaning) + " is missing"});
        }
        return end == 0 ? m_statements.size() : end;
    }

    static bool endsProgram(Meaning meaning) {
        return meaning == Meaning::programEnd || meaning == Meaning::percent;
    }

    static bool isChange(Meaning meaning) {
        return meaning == Meaning::unload || meaning == Meaning::stop || meaning == Meaning::pause;
    }

    void findChanges(std::size_t begin, std::size_t end) {
        std::vector<Meaning> before; // a run of stops
        std::uint32_t line = 0;
        bool hasTool = false;
        for (std::size_t i = begin; i < end; ++i) {
            const StatementMark& statement = m_statements[i];
            if (isChange(statement.meaning)) {
                line = before.empty() ? statement.line : line;
                before.push_back(statement.meaning);
                continue;
            }
            if (statement.meaning == Meaning::tool)
                findChange(hasTool ? m_target.beforeTool : m_target.beforeFirstTool, before,
                           statement.line);
            else if (!before.empty())
                findStray(before.front(), line);
            hasTool = hasTool || statement.meaning == Meaning::tool;
            before.clear();
            findOutOfPlace(statement);
        }
        if (!before.empty())
            findStray(before.front(), line);
    }

    void findChange(std::span<const Meaning> wanted, const std::vector<Meaning>& before,
                    std::uint32_t line) {
        if (std::equal(wanted.begin(), wanted.end(), before.begin(), before.end()))
            return;
        if (wanted.empty())
            findStray(before.front(), line);
        else
            m_findings.add(Kind::toolStop, line, {quoted(wanted)});
    }

    void findOutOfPlace(const StatementMark& statement) {
        if (endsProgram(statement.meaning))
            m_findings.add(Kind::ending, statement.line, {"it ends here, but lines follow"});
        else if (isOneOf({{Meaning::coordinates, Meaning::feedMode, Meaning::zeroShift}},
                         statement.meaning))
            findStray(statement.meaning, statement.line);
    }

    void findStray(Meaning meaning, std::uint32_t line) {
        m_findings.add(Kind::statement, line,
                       {std::string(patternOf(m_target, meaning)), std::string(m_target.name)});
    }

    const Target& m_target;
    const LongVector<StatementMark>& m_statements;
    std::uint32_t m_lastLine;
    Findings& m_findings;
};

} // namespace

void findStructure(const Program& program, Findings& findings) {
    Structure(program, findings).find();
}

} // namespace torvik::check
