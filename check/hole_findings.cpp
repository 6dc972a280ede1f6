// SPDX-License-Identifier: MIT
#include "check/finders.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace torvik::check {
namespace {

struct Hole {
    std::uint32_t line = 0;
    Place place;
    std::vector<double> levels; // where the ways down end
    std::vector<double> more;   // feeds, waits and how far the drill comes up between
};

bool isSameNumber(double a, double b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}

bool areDrilledAlike(const Hole& a, const Hole& b) {
    return std::equal(a.levels.begin(), a.levels.end(), b.levels.begin(), b.levels.end(),
                      isSameNumber) &&
           std::equal(a.more.begin(), a.more.end(), b.more.begin(), b.more.end(), isSameNumber);
}

class Holes {
public:
    Holes(const Walked& walked, Findings& findings) : m_walked(walked), m_findings(findings) {}

    void find() {
        for (const Move& move : m_walked.moves)
            take(move);
        endHole();
    }

private:
    void take(const Move& move) {
        switch (move.kind) {
        case MoveKind::feedHeight:
            if (m_hole.levels.empty())
                m_hole.line = move.line;
            m_hole.place = move.to;
            m_hole.levels.push_back(move.to.z);
            m_hole.more.push_back(move.feed);
            break;
        case MoveKind::dwell:
            m_hole.more.push_back(move.value);
            break;
        case MoveKind::rapidHeight:
            if (isSameHeight(move.to.z, m_walked.heights.safe))
                endHole();
            else if (!m_hole.levels.empty())
                m_hole.more.push_back(move.to.z);
            break;
        case MoveKind::tool:
            endHole();
            m_drilled.clear();
            m_last.clear();
            break;
        case MoveKind::spindleOn:
            endHole();
            m_last.clear();
            break;
        case MoveKind::rapidAcross:
            endHole();
            break;
        default:
            m_isCut = m_isCut || move.isCut();
            break;
        }
    }

    void endHole() {
        if (!m_hole.levels.empty() && !m_isCut)
            judge(std::move(m_hole));
        m_hole = {};
        m_isCut = false;
    }

    void judge(Hole hole) {
        const auto whole = [](double length) {
            return std::isfinite(length) ? std::lround(length / lengthStep) : 0;
        };
        if (!m_drilled.emplace(whole(hole.place.x), whole(hole.place.y)).second)
            m_findings.add(Kind::holeTwice, hole.line);
        if (!hasEvenSteps(hole.levels))
            m_findings.add(Kind::holeDiffers, hole.line);
        if (m_last.size() == seen)
            m_last.erase(m_last.begin());
        m_last.push_back(std::move(hole));
        if (m_last.size() == seen)
            findOdd();
    }

    // All steps are as large as the first, the last one may be smaller.
    static bool hasEvenSteps(const std::vector<double>& levels) {
        constexpr double tolerance = 1.5 * heightStep;
        const double step = -levels.front();
        for (std::size_t i = 1; i < levels.size(); ++i) {
            const double next = levels[i - 1] - levels[i];
            const bool isLast = i + 1 == levels.size();
            if (next > step + tolerance || (!isLast && next < step - tolerance))
                return false;
        }
        return true;
    }

    // The one in the middle, where the two beside it are alike.
    void findOdd() {
        if (areDrilledAlike(m_last[0], m_last[2]) && !areDrilledAlike(m_last[0], m_last[1]))
            m_findings.add(Kind::holeDiffers, m_last[1].line);
    }

    static constexpr std::size_t seen = 3;

    const Walked& m_walked;
    Findings& m_findings;
    Hole m_hole;
    bool m_isCut = false;
    std::vector<Hole> m_last;
    std::set<std::pair<long, long>> m_drilled; // places of this tool, in thousandths
};

} // namespace

void findHoles(const Walked& walked, Findings& findings) {
    Holes(walked, findings).find();
}

} // namespace torvik::check
