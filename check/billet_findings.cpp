// SPDX-License-Identifier: MIT
#include "check/extents.h"
#include "check/finders.h"
#include "check/limits.h"

#include <array>

namespace torvik::check {
namespace {

constexpr double reach = 1.5 * lengthStep;

class AgainstBillet {
public:
    AgainstBillet(const Walked& walked, Findings& findings)
        : m_walked(walked), m_billet(walked.program.header.billet), m_findings(findings) {}

    void find() {
        for (const Move& move : m_walked.moves) {
            if (!takesMaterial(move))
                continue;
            const Extents extents = extentsOf(move);
            m_all.add(extents);
            takeOutside(move, extents);
            takeDepth(move);
        }
        findOutside();
        findDepth();
        findWidth(m_all.highX - m_all.lowX, m_billet.length, "X");
        findWidth(m_all.highY - m_all.lowY, m_billet.width, "Y");
    }

private:
    void takeOutside(const Move& move, const Extents& extents) {
        const std::array out{extents.lowX<-reach, extents.highX> m_billet.length + reach,
                             extents.lowY<-reach, extents.highY> m_billet.width + reach};
        for (std::size_t side = 0; side < out.size(); ++side)
            if (out[side] && m_outsideLines[side] == 0)
                m_outsideLines[side] = move.line;
    }

    // Once for each side: the first cut out there, and how far the farthest goes.
    void findOutside() {
        const std::array farthest{m_all.lowX, m_all.highX, m_all.lowY, m_all.highY};
        for (std::size_t side = 0; side < farthest.size(); ++side) {
            const bool isX = side < 2;
            const double size = isX ? m_billet.length : m_billet.width;
            if (m_outsideLines[side] == 0 || std::isnan(size))
                continue;
            const char* const axis = isX ? "X" : "Y";
            m_findings.add(Kind::outside, m_outsideLines[side],
                           {axis + lengthText(farthest[side]), axis + lengthText(size)});
        }
    }

    void takeDepth(const Move& move) {
        const double depth = -move.to.z;
        if (m_throughLine == 0 && depth >= m_billet.depth)
            m_throughLine = move.line;
        if (m_deepLine == 0 && depth > m_billet.depth + cuttingOut)
            m_deepLine = move.line;
        m_deepest = std::fmax(m_deepest, depth);
    }

    void findDepth() {
        const std::vector<std::string> values{heightText(m_deepest), heightText(m_billet.depth)};
        if (m_deepLine > 0)
            m_findings.add(Kind::tooDeep, m_deepLine, values);
        else if (m_throughLine > 0)
            m_findings.add(Kind::through, m_throughLine, values);
    }

    void findWidth(double needed, double size, const char* axis) {
        if (needed > size + reach)
            m_findings.add(Kind::tooWide, m_walked.program.lastLine(),
                           {lengthText(needed), lengthText(size), axis});
    }

    const Walked& m_walked;
    const Billet& m_billet;
    Findings& m_findings;
    Extents m_all;
    std::array<std::uint32_t, 4> m_outsideLines{}; // low X, high X, low Y, high Y; 0: none
    std::uint32_t m_throughLine = 0;
    std::uint32_t m_deepLine = 0;
    double m_deepest = 0;
};

} // namespace

void findBillet(const Walked& walked, Findings& findings) {
    AgainstBillet(walked, findings).find();
}

} // namespace torvik::check
