// SPDX-License-Identifier: MIT
// Findings as a page shows them.
#pragma once

#include "check/findings.h"
#include "forms/quiet_line.h"

#include <algorithm>
#include <optional>

namespace torvik {

// The sentences, the worst first; what is dangerous or wrong in the warning's colour. A kind that
// is told elsewhere may be left out.
inline QuietLine::Texts findingTexts(const check::Findings& findings,
                                     std::optional<check::Kind> toldElsewhere = {}) {
    std::vector<check::Finding> sorted = findings.byLine();
    const auto level = [](const check::Finding& finding) {
        return check::rowOf(finding.kind).level;
    };
    std::stable_sort(sorted.begin(), sorted.end(),
                     [&](const auto& a, const auto& b) { return level(a) > level(b); });
    QuietLine::Texts texts;
    for (const check::Finding& finding : sorted) {
        if (finding.kind == toldElsewhere)
            continue;
        texts.push_back({QString::fromStdString(check::sentenceOf(finding)),
                         level(finding) < check::Level::wrong ? QuietLine::Tone::plain
                                                              : QuietLine::Tone::warning});
    }
    return texts;
}

} // namespace torvik
