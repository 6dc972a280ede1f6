// SPDX-License-Identifier: MIT
#include "check/plan/asked.h"

#include "base/numbers.h"
#include "base/picture.h"
#include "tools/tool_list.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace torvik::check {
namespace {

double written(double value, int decimals) {
    return std::isfinite(value) ? leadingNumber(formatFixed(value, decimals)) : unknown;
}

double writtenHeight(float z) {
    return written(z, 2);
}

// The product is exact, a single has few digits: what is rounded is the length itself.
double writtenLength(float length) {
    return std::round(double{length} * 1000) / 1000;
}

Point writtenPoint(float x, float y) {
    return {writtenLength(x), writtenLength(y)};
}

AskedElement elementOf(const Path& path) {
    AskedElement element;
    element.path = &path;
    element.start = writtenPoint(path.sngStartX, path.sngStartY);
    element.end = writtenPoint(path.sngEndX, path.sngEndY);
    if (path.intType == straightLine)
        return element;
    element.kind =
        path.intType == arcClockwise ? MoveKind::cutClockwise : MoveKind::cutCounterClockwise;
    element.offset =
        writtenPoint(path.sngCentreX - path.sngStartX, path.sngCentreY - path.sngStartY);
    return element;
}

AskedElement holeOf(const Path& path) {
    AskedElement hole;
    hole.path = &path;
    hole.start = hole.end = writtenPoint(path.sngCentreX, path.sngCentreY);
    return hole;
}

bool isKnownElement(const Path& path) {
    return path.intType >= straightLine && path.intType <= arcClockwise;
}

// Puts the groups together, and follows where the tool is.
class Builder {
public:
    Builder(const Job& job, const ToolList& tools, const Target& target, std::size_t mostSteps)
        : m_job(job), m_tools(tools), m_target(target), m_mostSteps(mostSteps) {
        for (long i = 1; i <= job.drawing.gintPathCount; ++i) {
            const Path& path = job.drawing.gudtPaths[i];
            if (path.intPen >= 1 && path.intPen <= penCount)
                m_ofPen[static_cast<std::size_t>(path.intPen)].push_back(&path);
        }
    }

    std::vector<PlanGroup> build() {
        std::vector<PlanGroup> groups;
        visitMachinedGroups(m_job, [&](const MachinedGroup& name) {
            PlanGroup group = plain(name);
            if (!group.steps.empty())
                group.isDrilled ? drill(group) : cut(group);
            groups.push_back(std::move(group));
        });
        return groups;
    }

private:
    PlanGroup plain(const MachinedGroup& name) const {
        const Settings& settings = m_job.answers.gudtSettings[name.settings];
        PlanGroup group;
        group.name = name;
        group.pen = &m_job.answers.gudtPens[name.pen];
        group.isDrilled = name.radius != 0;
        if (const Tool* const tool = findTool(m_tools, settings.intTool))
            group.tool = tool->intNumber;
        group.speed = written(settings.sngSpindleSpeed, 0);
        group.feedDown = writtenFeed(settings.sngFeedVertical);
        group.dwell = writtenDwell(settings.sngDwell);
        group.dwells = settings.sngDwell > 0;
        group.pecks = settings.blnPeck;
        group.steps =
            group.isDrilled ? pecksOf(settings, m_mostSteps) : passesOf(settings, m_mostSteps);
        for (StepDown& step : group.steps)
            step = {writtenHeight(static_cast<float>(step.z)), writtenFeed(step.feed)};
        return group;
    }

    double writtenFeed(double feed) const {
        return written(feed / m_target.feedFactor, m_target.feedDecimals) * m_target.feedFactor;
    }

    double writtenDwell(double dwell) const {
        return written(dwell * std::round(1 / m_target.dwellFactor), m_target.dwellDecimals) *
               m_target.dwellFactor;
    }

    const std::vector<const Path*>& pathsOf(const PlanGroup& group) const {
        return m_ofPen[static_cast<std::size_t>(group.name.pen)];
    }

    void cut(PlanGroup& group) {
        for (const Path* path : pathsOf(group))
            if (isKnownElement(*path))
                add(group, elementOf(*path), {path->sngStartX, path->sngStartY},
                    Spot{path->sngEndX, path->sngEndY});
        if (!group.elements.empty())
            group.isClosed = isAt(group.elements.front().path->sngStartX,
                                  group.elements.front().path->sngStartY);
    }

    // The holes of all sizes of a pen are found together, with the first one.
    void drill(PlanGroup& group) {
        if (m_sizesOf != group.name.pen) {
            m_sizesOf = group.name.pen;
            m_ofSize.assign(static_cast<std::size_t>(group.pen->intRadiusCount) + 1, {});
            for (const Path* path : pathsOf(group))
                visitDrilledSizes(*group.pen, path->sngRadius, [&](std::int16_t size) {
                    m_ofSize[static_cast<std::size_t>(size)].push_back(path);
                });
        }
        for (const Path* path : m_ofSize[static_cast<std::size_t>(group.name.radius)])
            add(group, holeOf(*path), {path->sngCentreX, path->sngCentreY}, std::nullopt);
    }

    struct Spot {
        float x;
        float y;
    };

    // Without an end the tool stays where it was told to go last.
    void add(PlanGroup& group, AskedElement element, Spot start, std::optional<Spot> end) {
        element.beginsAtLast = isAt(start.x, start.y);
        if (!element.beginsAtLast)
            m_at = start;
        if (end)
            m_at = end;
        group.elements.push_back(element);
    }

    bool isAt(float x, float y) const { return m_at && isSamePosition(x, y, m_at->x, m_at->y); }

    const Job& m_job;
    const ToolList& m_tools;
    const Target& m_target;
    std::size_t m_mostSteps;
    std::array<std::vector<const Path*>, penCount + 1> m_ofPen;
    std::int16_t m_sizesOf = 0; // the pen whose holes these are
    std::vector<std::vector<const Path*>> m_ofSize;
    std::optional<Spot> m_at;
};

} // namespace

Asked::Asked(const Job& job, const ToolList& tools, const Target& target, std::size_t mostSteps)
    : m_heights{writtenHeight(job.answers.gsngToolChangeHeight),
                writtenHeight(job.answers.gsngSafeHeight),
                writtenHeight(job.answers.gsngRapidDownTo)},
      m_groups(Builder(job, tools, target, mostSteps).build()) {
    for (PlanGroup& group : m_groups) {
        group.first = m_size;
        m_size += group.size();
    }
}

AskedItem Asked::at(std::size_t number) const {
    const auto behind =
        std::upper_bound(m_groups.begin(), m_groups.end(), number,
                         [](std::size_t n, const PlanGroup& group) { return n < group.first; });
    AskedItem item;
    item.group = &*(behind - 1);
    item.groupNumber = static_cast<std::size_t>(item.group - m_groups.data());
    const std::size_t place = number - item.group->first;
    const std::size_t count = item.group->elements.size();
    const std::size_t pass = item.group->isDrilled ? 0 : place / count;
    item.element = &item.group->elements[place - pass * count];
    item.isInFirstPass = place < count;
    item.beginsAtLast = item.isInFirstPass || item.element != &item.group->elements.front()
                            ? item.element->beginsAtLast
                            : item.group->isClosed;
    if (!item.group->isDrilled)
        item.pass = &item.group->steps[pass];
    return item;
}

} // namespace torvik::check
