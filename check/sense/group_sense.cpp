// SPDX-License-Identifier: MIT
#include "check/sense/group_sense.h"

#include "base/picture.h"
#include "check/limits.h"
#include "tools/tool_list.h"

#include <algorithm>

namespace torvik::check {
namespace {

constexpr float secondsOfMinute = 60;

class Work {
public:
    Work(const Job& job, const MachinedGroup& group, const Settings& settings, Findings& findings)
        : m_job(job), m_group(group), m_settings(settings), m_findings(findings),
          m_name(nameOf(job, group)) {}

    void findTool(const Tool& tool) {
        if (isDrilled())
            findDrill(tool);
        else
            findCutter(tool);
    }

    void findFeed() {
        const float feed = highestFeed();
        if (!(feed > fastestFeed))
            return;
        const std::string perMinute = formatFixed(feed, 0);
        if (m_job.answers.gsngFeedFactor == secondsOfMinute)
            add(Kind::feedUnits, {m_name, formatFixed(feed / secondsOfMinute, 2), perMinute});
        else
            add(Kind::feedHigh, {m_name, perMinute});
    }

    void findDwell() {
        if (isDrilled() && m_settings.sngDwell > longestWait)
            add(Kind::dwellLong, {m_name, formatFixed(m_settings.sngDwell, 1)});
    }

private:
    bool isDrilled() const { return m_group.radius > 0; }

    void add(Kind kind, std::vector<std::string> values) {
        m_findings.add(kind, 0, std::move(values), {m_group.pen, m_group.radius});
    }

    void findDrill(const Tool& tool) {
        const double hole = 2.0 * m_job.answers.gudtPens[m_group.pen].sngRadii[m_group.radius];
        if (tool.sngDiameter > hole + radiusTolerance)
            add(Kind::holeNarrow, {m_name, formatFixed(tool.sngDiameter, 2)});
        if (tool.strType == "End mill")
            add(Kind::endMillDrills, {m_name});
    }

    void findCutter(const Tool& tool) {
        if (tool.strType == "Drill" || tool.strType == "Reamer")
            add(Kind::drillCuts, {m_name, tool.strType});
        const float step = std::min(m_settings.sngDepthPerPass, m_settings.sngDepth);
        if (tool.sngDiameter > 0 && step > tool.sngDiameter)
            add(Kind::deepStep, {m_name, heightText(step), formatFixed(tool.sngDiameter, 2)});
    }

    float highestFeed() const {
        if (isDrilled())
            return m_settings.sngFeedVertical;
        const bool hasFinalPass =
            m_settings.sngFinalPassDepth > 0 && m_settings.sngDepth != m_settings.sngDepthPerPass;
        return std::max({m_settings.sngFeedHorizontal, m_settings.sngFeedVertical,
                         hasFinalPass ? m_settings.sngFeedFinalPass : 0});
    }

    const Job& m_job;
    const MachinedGroup& m_group;
    const Settings& m_settings;
    Findings& m_findings;
    std::string m_name;
};

} // namespace

void findDepthSense(const Job& job, const MachinedGroup& group, const Settings& settings,
                    const Billet& billet, Findings& findings) {
    std::vector<std::string> values{nameOf(job, group), heightText(settings.sngDepth),
                                    heightText(billet.depth)};
    if (settings.sngDepth > billet.depth + cuttingOut)
        findings.add(Kind::billetDepth, 0, std::move(values), {group.pen, group.radius});
    else if (std::isnan(billet.depth) && settings.sngDepth > deepestCut)
        findings.add(Kind::depthHigh, 0, std::move(values), {group.pen, group.radius});
}

void findWorkSense(const Job& job, const MachinedGroup& group, const Settings& settings,
                   const Tool* tool, Findings& findings) {
    Work work(job, group, settings, findings);
    if (tool != nullptr)
        work.findTool(*tool);
    work.findFeed();
    work.findDwell();
}

} // namespace torvik::check
