// SPDX-License-Identifier: MIT
#include "check/finders.h"

#include <algorithm>
#include <array>

namespace torvik::check {
namespace {

class Motion {
public:
    Motion(const Walked& walked, Findings& findings) : m_walked(walked), m_findings(findings) {}

    void find() {
        for (const Move& move : m_walked.moves) {
            if (move.kind == MoveKind::rapidHeight)
                rapidHeight(move);
            else if (move.kind == MoveKind::rapidAcross)
                rapidAcross(move);
            else if (move.kind == MoveKind::feedHeight)
                feedHeight(move);
            else if (move.isCut())
                cut(move);
        }
        findEnd();
    }

private:
    const Heights& heights() const { return m_walked.heights; }

    void rapidHeight(const Move& move) {
        m_heightSaid = true;
        if (move.to.z <= 0)
            m_findings.add(Kind::rapidDown, move.line, {heightText(move.to.z)});
        else if (std::isfinite(move.to.z) && isOdd(move.to.z))
            findOddHeight(move);
    }

    bool isOdd(double z) const {
        const std::array known{heights().toolChange, heights().safe, heights().rapidDown};
        return std::isfinite(heights().safe) &&
               std::none_of(known.begin(), known.end(),
                            [z](double height) { return isSameHeight(z, height); });
    }

    void findOddHeight(const Move& move) {
        std::string usual;
        for (const double height : {heights().toolChange, heights().safe, heights().rapidDown})
            if (std::isfinite(height))
                usual += (usual.empty() ? "Z" : ", Z") + heightText(height);
        m_findings.add(Kind::oddHeight, move.line, {heightText(move.to.z), usual});
    }

    void rapidAcross(const Move& move) {
        m_placeSaid = true;
        if (!m_heightSaid)
            findUnknown(move, "how high the tool is");
        const double z = move.from.z;
        if (z <= 0)
            m_findings.add(Kind::rapidSideways, move.line, {heightText(z)});
        else if (isSameHeight(z, heights().safe))
            return;
        else if (z < heights().safe)
            m_findings.add(Kind::lowRapid, move.line, {heightText(z), heightText(heights().safe)});
        else if (z > heights().safe)
            findOddHeight(move);
    }

    void findUnknown(const Move& move, const char* what) {
        if (m_unknownFound)
            return;
        m_unknownFound = true;
        m_findings.add(Kind::unknownPlace, move.line, {what});
    }

    void feedHeight(const Move& move) {
        if (!m_placeSaid)
            findUnknown(move, "where the tool is, X and Y");
        if (move.to.z > 0)
            m_findings.add(Kind::airCut, move.line, {heightText(move.to.z)});
        if (move.to.z > move.from.z)
            m_findings.add(Kind::upwardFeed, move.line,
                           {heightText(move.from.z), heightText(move.to.z)});
        if (move.from.z > heights().rapidDown + heightStep / 2)
            m_findings.add(Kind::slowPlunge, move.line,
                           {heightText(move.from.z), heightText(heights().rapidDown)});
    }

    void cut(const Move& move) {
        if (!m_placeSaid)
            findUnknown(move, "where the tool is, X and Y");
        if (isSameHeight(move.from.z, 0))
            m_findings.add(Kind::surfaceCut, move.line);
        else if (move.from.z > 0)
            m_findings.add(Kind::airCut, move.line, {heightText(move.from.z)});
    }

    void findEnd() {
        if (m_walked.moves.empty())
            return;
        const double z = m_walked.moves.back().to.z;
        constexpr double half = heightStep / 2;
        if (z <= 0 || z < heights().safe - half || z < heights().toolChange - half)
            m_findings.add(Kind::endHeight, m_walked.program.lastLine(), {heightText(z)});
    }

    const Walked& m_walked;
    Findings& m_findings;
    bool m_heightSaid = false;
    bool m_placeSaid = false;
    bool m_unknownFound = false;
};

} // namespace

void findMotion(const Walked& walked, Findings& findings) {
    Motion(walked, findings).find();
}

} // namespace torvik::check
