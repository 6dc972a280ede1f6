// SPDX-License-Identifier: MIT
// Findings as a page shows them.
#pragma once

#include "check/finding_rows.h"
#include "forms/quiet_line.h"
#include "languages/shown_text.h"

#include <optional>

namespace torvik {

// The sentences, the worst first; what is dangerous or wrong in the warning's colour. A kind that
// is told elsewhere may be left out.
inline QuietLine::Texts findingTexts(const check::Findings& findings,
                                     std::optional<check::Kind> toldElsewhere = {}) {
    QuietLine::Texts texts;
    for (const check::FindingRow& row : check::findingRows(findings))
        if (row.kind != toldElsewhere)
            texts.push_back({shownFilled(row.sentence, check::rowOf(row.kind).sentence),
                             row.level() < check::Level::wrong ? QuietLine::Tone::plain
                                                               : QuietLine::Tone::warning});
    return texts;
}

} // namespace torvik
