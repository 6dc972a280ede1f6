// SPDX-License-Identifier: MIT
#include "check/finding_rows.h"

#include "base/picture.h"

#include <algorithm>

namespace torvik::check {
namespace {

// Counts to the last row of each kind what was found but not kept.
void countTheOthers(std::vector<FindingRow>& rows, const Findings& findings) {
    for (const KindRow& kind : kinds()) {
        FindingRow* last = nullptr;
        std::size_t told = 0;
        for (FindingRow& row : rows)
            if (row.kind == kind.kind) {
                last = &row;
                told += row.count;
            }
        if (last != nullptr)
            last->count += findings.count(kind.kind) - told;
    }
}

} // namespace

std::string FindingRow::where() const {
    if (line == 0)
        return {};
    const std::string first = "line " + formatInteger(static_cast<long>(line));
    return count == 1 ? first
                      : first + " and " + formatInteger(static_cast<long>(count - 1)) + " more";
}

std::vector<FindingRow> findingRows(const Findings& findings) {
    std::vector<FindingRow> rows;
    for (const Finding& finding : findings.byLine()) {
        const std::string sentence = sentenceOf(finding);
        const auto same = std::find_if(rows.begin(), rows.end(), [&](const FindingRow& row) {
            return row.kind == finding.kind && row.sentence == sentence;
        });
        if (same == rows.end())
            rows.push_back({finding.kind, finding.line, 1, sentence});
        else
            ++same->count;
    }
    countTheOthers(rows, findings);
    std::stable_sort(rows.begin(), rows.end(), [](const FindingRow& a, const FindingRow& b) {
        return a.level() > b.level();
    });
    return rows;
}

} // namespace torvik::check
