// SPDX-License-Identifier: MIT
#include "check/finders.h"
#include "check/pass.h"

#include <algorithm>

namespace torvik::check {
namespace {

constexpr double stepTolerance = 1.5 * heightStep; // both heights of a step are rounded

class Passes {
public:
    explicit Passes(Findings& findings) : m_findings(findings) {}

    void find(const Section& section) {
        m_alike.clear();
        for (std::size_t i = 0; i < section.size(); ++i) {
            const bool goesOn = i > 0 && section[i].z < section[i - 1].z;
            if (!goesOn || !compare(section[i - 1], section[i]))
                beginAnew(goesOn);
            m_alike.push_back(&section[i]);
        }
        findSteps();
    }

private:
    // True where both passes cut the same from the first cut to the last.
    bool compare(const Pass& before, const Pass& pass) {
        const std::size_t common = commonCuts(before, pass);
        const std::size_t fewer = std::min(before.cuts.size(), pass.cuts.size());
        const bool startsDiffer = !startsAlike(before, pass, common);
        m_isLinked = common > 0;
        if (common < fewer) {
            const std::size_t shared = sharedCuts(before, pass);
            if (shared > common && shared >= 2 && 2 * shared >= fewer) {
                findDifference(pass);
                m_isLinked = true;
            }
        } else if (fewer >= 2 && startsDiffer) {
            findDifference(pass);
        }
        return !startsDiffer && before.cuts.size() == common && pass.cuts.size() == common;
    }

    static bool startsAlike(const Pass& before, const Pass& pass, std::size_t common) {
        for (std::size_t i = 0; i < common; ++i)
            if (!startAlike(*before.cuts[before.cuts.size() - common + i], *pass.cuts[i]))
                return false;
        return true;
    }

    void findDifference(const Pass& pass) {
        m_findings.add(Kind::passDiffers, pass.cuts.front()->line, {heightText(pass.z)});
    }

    // Where a pass shares some of its cuts with the one before, the first step of its pen is not
    // known.
    void beginAnew(bool goesOn) {
        findSteps();
        m_alike.clear();
        m_firstIsKnown = !goesOn || !m_isLinked;
    }

    // All steps are as large as the first. The last two may be smaller: the last one of roughing,
    // and the final pass.
    void findSteps() {
        if (!m_firstIsKnown)
            return;
        const double step = m_alike.empty() ? 0 : -m_alike.front()->z;
        for (std::size_t i = 1; i < m_alike.size(); ++i) {
            const double next = m_alike[i - 1]->z - m_alike[i]->z;
            const bool mayBeSmaller = i + 2 >= m_alike.size();
            if (next > step + stepTolerance || (!mayBeSmaller && next < step - stepTolerance))
                findDifference(*m_alike[i]);
        }
    }

    Findings& m_findings;
    std::vector<const Pass*> m_alike; // passes of the same cuts, one below the other
    bool m_isLinked = false;          // the last two passes have cuts in common
    bool m_firstIsKnown = true;
};

} // namespace

void findPasses(const Walked& walked, Findings& findings) {
    Passes passes(findings);
    for (const Section& section : sectionsOf(walked.moves))
        passes.find(section);
}

} // namespace torvik::check
