// SPDX-License-Identifier: MIT
// The polygon buffer: what is drawn between PM0 and PM2 is kept here, and drawn by EP and FP. It
// holds closed subpolygons; an edge drawn with the pen up belongs to the area but not to the line.
// Where the pen goes up from an outline that it has closed, it leads to another outline: such a
// seam belongs to neither.
#pragma once

#include "prepare/strokes.h"

#include <optional>
#include <vector>

namespace torvik {

class PolygonBuffer {
public:
    // PM0: empties the buffer and starts a subpolygon at the pen's place.
    void open(Point place, bool penDown);
    // PM1: closes the subpolygon; the next place starts another.
    void closeSubpolygon(bool penDown);
    // PM2. Gives the place where the pen was at PM0.
    Point close(bool penDown);
    void clear();

    bool isOpen() const { return m_open; }
    bool wasPenDown() const { return m_wasPenDown; }

    void travel(const Segment& segment, bool penDown);
    void addCircle(Stroke circle, bool penDown);

    // EP: the edges drawn with the pen down, or only the others.
    std::vector<Stroke> edges(bool drawn = true) const;
    // FP: the outlines of all subpolygons.
    std::vector<Stroke> outlines() const;

    // Which pen has drawn all outlines already, and which one the edges; 0 for none. The same pen
    // would only draw them twice.
    int outlinedBy() const { return m_outlinedBy; }
    void setOutlinedBy(int pen) { m_outlinedBy = pen; }
    int edgedBy() const { return m_edgedBy; }
    void setEdgedBy(int pen) { m_edgedBy = pen; }

private:
    struct Subpolygon {
        Stroke outline;
        std::vector<bool> isDrawn;     // of each segment
        bool isClosedByBuffer = false; // by its last segment
    };

    std::vector<Subpolygon> parts() const;
    static void takeApart(const Subpolygon& subpolygon, std::vector<Subpolygon>& parts);

    std::vector<Subpolygon> m_subpolygons;
    bool m_open = false;
    bool m_startPending = false;
    bool m_wasPenDown = false;
    Point m_openedAt;
    int m_outlinedBy = 0;
    int m_edgedBy = 0;
};

} // namespace torvik
