// SPDX-License-Identifier: MIT
#include "base/picture.h"
#include "check/finders.h"

#include <algorithm>

namespace torvik::check {
namespace {

class Tools {
public:
    Tools(const Walked& walked, Findings& findings)
        : m_walked(walked), m_listed(walked.program.header.tools), m_findings(findings) {}

    void find() {
        for (const Move& move : m_walked.moves) {
            if (move.kind == MoveKind::tool)
                change(move);
            else if (move.isFed() && m_taken == 0 && !m_noToolFound) {
                m_noToolFound = true;
                m_findings.add(Kind::noTool, move.line);
            }
        }
        if (m_taken > 0 && m_listed.empty())
            m_findings.add(Kind::noList, 1);
        if (m_taken < m_listed.size() && m_taken > 0)
            m_findings.add(Kind::toolOrder, m_walked.program.lastLine(),
                           {"it names " + countText(m_listed.size()) + ", the program takes " +
                            countText(m_taken)});
    }

private:
    static std::string countText(std::size_t tools) {
        return formatInteger(static_cast<long>(tools));
    }

    void change(const Move& move) {
        findLow(move);
        if (std::isfinite(move.value)) {
            const int tool = static_cast<int>(move.value);
            findOffset(move, tool);
            if (!m_listed.empty())
                findUnlisted(move, tool);
        }
        ++m_taken;
    }

    void findLow(const Move& move) {
        const double z = move.from.z;
        const Heights& heights = m_walked.heights;
        const double least = std::fmax(std::fmax(heights.toolChange, heights.safe), 0);
        if (z <= 0 || z < least - heightStep / 2)
            m_findings.add(Kind::toolLow, move.line, {heightText(z), heightText(least)});
    }

    void findOffset(const Move& move, int tool) {
        const Target& target = m_walked.target();
        if (target.offsetOf == nullptr || !std::isfinite(move.offset))
            return;
        const int wanted = target.offsetOf(tool);
        if (const int found = static_cast<int>(move.offset); found != wanted)
            m_findings.add(Kind::toolOffset, move.line,
                           {formatInteger(tool), target.offsetLetter + formatInteger(found),
                            target.offsetLetter + formatInteger(wanted)});
    }

    // The list ends with its sixteenth tool although the program may take more.
    void findUnlisted(const Move& move, int tool) {
        if (m_taken >= Header::mostListed)
            return;
        const bool isNext = m_taken < m_listed.size() && m_listed[m_taken].number == tool;
        if (isNext)
            return;
        const bool isListed =
            std::any_of(m_listed.begin(), m_listed.end(),
                        [tool](const ListedTool& listed) { return listed.number == tool; });
        if (!isListed)
            m_findings.add(Kind::toolUnlisted, move.line, {formatInteger(tool)});
        else
            m_findings.add(Kind::toolOrder, move.line,
                           {"T" + formatInteger(tool) + " has another place in it"});
    }

    const Walked& m_walked;
    const std::vector<ListedTool>& m_listed;
    Findings& m_findings;
    std::size_t m_taken = 0;
    bool m_noToolFound = false;
};

} // namespace

void findTools(const Walked& walked, Findings& findings) {
    Tools(walked, findings).find();
}

} // namespace torvik::check
