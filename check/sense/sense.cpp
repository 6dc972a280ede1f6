// SPDX-License-Identifier: MIT
#include "check/sense/sense.h"

#include "base/picture.h"
#include "check/sense/changes.h"
#include "check/sense/group_sense.h"
#include "check/sense/outlines.h"

#include <array>

namespace torvik::check {
namespace {

Billet billetOfHeader(const Answers& answers) {
    return billetOf(answers.gstrHeader[headerBilletX], answers.gstrHeader[headerBilletY],
                    answers.gstrHeader[headerBilletZ]);
}

// What both the text and the job tell is kept as the job tells it: that names the pen.
void leaveOutTwins(Findings& findings) {
    struct Twins {
        Kind ofJob;
        Kind ofText;
    };
    constexpr std::array twins{
        Twins{Kind::billetDepth, Kind::tooDeep},   Twins{Kind::billetOutside, Kind::outside},
        Twins{Kind::billetOutside, Kind::tooWide}, Twins{Kind::feedHigh, Kind::feedOdd},
        Twins{Kind::feedUnits, Kind::feedOdd},     Twins{Kind::dwellLong, Kind::dwellOdd}};
    for (const Twins& twin : twins)
        if (findings.count(twin.ofJob) > 0)
            findings.forget(twin.ofText);
}

} // namespace

void addSense(const Job& job, const ToolList& tools, Findings& findings) {
    findSense(job, tools, findings);
    leaveOutTwins(findings);
}

void findSense(const Job& job, const ToolList& tools, Findings& findings) {
    const Answers& answers = job.answers;
    const std::vector<std::int16_t> order = orderOf(answers);
    const Billet billet = billetOfHeader(answers);
    findHeightSense(answers.gsngToolChangeHeight, answers.gsngSafeHeight, answers.gsngRapidDownTo,
                    findings);
    visitAsked(job, order, [&](const MachinedGroup& group, const Settings& settings) {
        findDepthSense(job, group, settings, billet, findings);
        findWorkSense(job, group, settings, toolOf(settings, tools), findings);
    });
    findAreaSense(reachOf(job, tools), billet, findings);
    findOrderSense(job, tools, order, findings);
}

void findSense(const Job& job, const ToolList& tools, const MachinedGroup& group,
               const Settings& settings, Findings& findings) {
    findDepthSense(job, group, settings, billetOfHeader(job.answers), findings);
    findWorkSense(job, group, settings, toolOf(settings, tools), findings);
}

void findOrderSense(const Job& job, const ToolList& tools, PenOrder order, Findings& findings) {
    const std::vector<AskedGroup> asked = askedGroups(job, tools, order);
    findEarlyOutlines(job, asked, billetOfHeader(job.answers).depth, findings);
    const int changes = changesIn(asked);
    if (const int fewest = fewestChanges(asked); changes > fewest)
        findings.add(Kind::toolChanges, 0, {formatInteger(changes), formatInteger(fewest)});
}

int toolChanges(const Job& job, const ToolList& tools, PenOrder order) {
    return changesIn(askedGroups(job, tools, order));
}

} // namespace torvik::check
