// SPDX-License-Identifier: MIT
#include "check/sense/outlines.h"

#include "base/inside_polygon.h"
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
    Chain chain;
    const AskedGroup* group;
    std::vector<Point> corners{}; // empty until they are asked for
    bool covered = false;         // a later one holds it, and all that it holds
};

// The outlines that were cut through so far, in the cells of a grid over the drawing, so that a
// look at a place meets few of them. Of outlines in one another the outermost is kept.
class CutOutlines {
public:
    CutOutlines(const Drawing& drawing, const torvik::Extents& area)
        : m_drawing(drawing), m_area(area), m_width(std::max(area.width() / cellsASide, clearance)),
          m_height(std::max(area.height() / cellsASide, clearance)) {}

    void add(const Chain& chain, const AskedGroup& group) {
        const auto number = static_cast<std::uint32_t>(m_outlines.size());
        m_outlines.push_back({chain, &group});
        const torvik::Extents& box = chain.box;
        const auto [left, bottom] = cellOf(box.minX, box.minY);
        const auto [right, top] = cellOf(box.maxX, box.maxY);
        for (std::size_t y = bottom; y <= top; ++y)
            for (std::size_t x = left; x <= right; ++x)
                add(m_cells[y * cellsASide + x], {box, number});
    }

    // The one that the chain lies in, nullptr where there is none.
    const Outline* around(const Chain& chain) {
        const auto [x, y] = cellOf(chain.box.minX, chain.box.minY);
        for (const Entry& entry : m_cells[y * cellsASide + x])
            if (holds(entry, chain))
                return &m_outlines[entry.number];
        return nullptr;
    }

private:
    static constexpr std::size_t cellsASide = 32;

    struct Entry {
        torvik::Extents box;
        std::uint32_t number; // place in m_outlines
    };
    using Cell = std::vector<Entry>;

    void add(Cell& cell, const Entry& entry) {
        std::erase_if(cell, [&](const Entry& other) {
            if (!isWithin(other.box, entry.box))
                return false;
            Outline& inner = m_outlines[other.number];
            inner.covered = inner.covered || holds(entry, inner.chain);
            return inner.covered;
        });
        cell.push_back(entry);
    }

    bool holds(const Entry& entry, const Chain& chain) {
        if (!isWithin(chain.box, entry.box))
            return false;
        Outline& outline = m_outlines[entry.number];
        if (outline.corners.empty())
            outline.corners = cornersOf(m_drawing, outline.chain);
        return isInsidePolygon(outline.corners, chain.start);
    }

    std::pair<std::size_t, std::size_t> cellOf(double x, double y) const {
        const auto at = [](double distance, double size) {
            return static_cast<std::size_t>(
                std::clamp(distance / size, 0.0, double{cellsASide - 1}));
        };
        return {at(x - m_area.minX, m_width), at(y - m_area.minY, m_height)};
    }

    const Drawing& m_drawing;
    torvik::Extents m_area;
    double m_width; // of a cell
    double m_height;
    std::vector<Outline> m_outlines;
    std::array<Cell, cellsASide * cellsASide> m_cells;
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
        : m_job(job), m_billetDepth(billetDepth), m_findings(findings), m_cut(job.drawing, area) {}

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
                m_cut.add(chain, asked);
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
