// SPDX-License-Identifier: MIT
#include "check/sense/outlines.h"

#include "check/sense/chains.h"

#include <algorithm>
#include <array>

namespace torvik::check {
namespace {

constexpr double clearance = 0.01; // mm that something inside keeps from the outline's box

bool isWithin(const torvik::Extents& inner, const torvik::Extents& outer) {
    return inner.minX > outer.minX + clearance && inner.minY > outer.minY + clearance &&
           inner.maxX < outer.maxX - clearance && inner.maxY < outer.maxY - clearance;
}

struct Outline {
    torvik::Extents box;
    std::vector<Point> corners;
    const AskedGroup* group;
    bool covered = false; // a later one holds it, and all that it holds

    bool holds(const torvik::Extents& inner, Point point) const {
        return isWithin(inner, box) && isInside(corners, point);
    }
};

// The outlines that were cut through so far, in upright stripes of the drawing, so that a look at a
// place meets few of them. Of outlines in one another the outermost is kept.
class CutOutlines {
public:
    explicit CutOutlines(const torvik::Extents& area)
        : m_left(area.minX), m_stripe(std::max(area.width() / stripeCount, clearance)) {}

    void add(Outline outline) {
        const auto number = static_cast<std::uint32_t>(m_outlines.size());
        const auto [first, last] = stripesOf(outline.box);
        for (std::size_t i = first; i <= last; ++i) {
            std::erase_if(m_stripes[i], [&](std::uint32_t other) {
                Outline& inner = m_outlines[other];
                inner.covered = inner.covered || outline.holds(inner.box, inner.corners.front());
                return inner.covered;
            });
            m_stripes[i].push_back(number);
        }
        m_outlines.push_back(std::move(outline));
    }

    // The one that the chain lies in, nullptr where there is none.
    const Outline* around(const Chain& chain) const {
        for (const std::uint32_t number : m_stripes[stripesOf(chain.box).first])
            if (m_outlines[number].holds(chain.box, chain.start))
                return &m_outlines[number];
        return nullptr;
    }

private:
    static constexpr std::size_t stripeCount = 256;

    std::pair<std::size_t, std::size_t> stripesOf(const torvik::Extents& box) const {
        const auto at = [&](double x) {
            return static_cast<std::size_t>(
                std::clamp((x - m_left) / m_stripe, 0.0, double{stripeCount - 1}));
        };
        return {at(box.minX), at(box.maxX)};
    }

    double m_left;
    double m_stripe; // width
    std::vector<Outline> m_outlines;
    std::array<std::vector<std::uint32_t>, stripeCount> m_stripes;
};

// A hole as a chain: it lies at its centre.
std::vector<Chain> holesOf(const Drawing& drawing, const std::vector<std::int16_t>& paths) {
    std::vector<Chain> holes;
    for (const std::int16_t subscript : paths) {
        const Path& path = drawing.gudtPaths[subscript];
        Chain hole{{}, noExtents(), {path.sngCentreX, path.sngCentreY}, false};
        includePoint(hole.box, hole.start.x, hole.start.y, path.sngRadius);
        holes.push_back(hole);
    }
    return holes;
}

class EarlyOutlines {
public:
    EarlyOutlines(const Job& job, const torvik::Extents& area, double billetDepth,
                  Findings& findings)
        : m_job(job), m_billetDepth(billetDepth), m_findings(findings), m_cut(area) {}

    void take(const AskedGroup& asked) {
        const Drawing& drawing = m_job.drawing;
        const bool isThrough = !asked.isDrilled() && asked.settings.sngDepth >= m_billetDepth;
        bool isFound = false;
        for (const Chain& chain :
             asked.isDrilled() ? holesOf(drawing, asked.paths) : chainsOf(drawing, asked.paths)) {
            if (const Outline* outline = isFound ? nullptr : m_cut.around(chain)) {
                isFound = true;
                add(*outline->group, asked);
            }
            if (isThrough && chain.closed)
                m_cut.add({chain.box, cornersOf(drawing, chain), &asked});
        }
    }

private:
    void add(const AskedGroup& outer, const AskedGroup& late) {
        const bool isOwn = outer.group.pen == late.group.pen;
        std::vector<std::string> values{nameOf(m_job, outer.group)};
        if (!isOwn)
            values.push_back(nameOf(m_job, late.group));
        m_findings.add(isOwn ? Kind::outlineEarlyOwn : Kind::outlineEarly, 0, std::move(values),
                       late.penGroup());
    }

    const Job& m_job;
    double m_billetDepth;
    Findings& m_findings;
    CutOutlines m_cut;
};

} // namespace

void findEarlyOutlines(const Job& job, const std::vector<AskedGroup>& asked, double billetDepth,
                       Findings& findings) {
    if (std::isnan(billetDepth))
        return;
    torvik::Extents area = noExtents();
    for (const Path& path : job.drawing.gudtPaths)
        includePath(area, path);
    if (area.empty())
        return;
    EarlyOutlines outlines(job, area, billetDepth, findings);
    for (const AskedGroup& group : asked)
        outlines.take(group);
}

} // namespace torvik::check
