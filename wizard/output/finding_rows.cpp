// SPDX-License-Identifier: MIT
#include "wizard/output/finding_rows.h"

#include <QCoreApplication>

#include <algorithm>

namespace torvik {
namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("FindingRows", text);
}

bool isNamed(const FindingRow& row) {
    return row.level() == check::Level::danger ||
           (row.level() == check::Level::wrong && row.kind >= check::Kind::elementLost &&
            row.kind <= check::Kind::clampedArc);
}

std::vector<FindingRow> namedRows(const check::Findings& findings) {
    std::vector<FindingRow> rows = findingRows(findings);
    std::erase_if(rows, [](const FindingRow& row) { return !isNamed(row); });
    return rows;
}

// Counts to the last row of each kind what was found but not kept.
void countTheOthers(std::vector<FindingRow>& rows, const check::Findings& findings) {
    for (const check::KindRow& kind : check::kinds()) {
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

QString FindingRow::text() const {
    if (line == 0)
        return sentence;
    if (count == 1)
        return tr("Line %1: %2").arg(line).arg(sentence);
    return tr("Line %1 and %2 more: %3").arg(line).arg(count - 1).arg(sentence);
}

std::vector<FindingRow> findingRows(const check::Findings& findings) {
    std::vector<FindingRow> rows;
    for (const check::Finding& finding : findings.byLine()) {
        const QString sentence = QString::fromStdString(check::sentenceOf(finding));
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

bool mustBeNamed(const check::Findings& findings) {
    return !namedRows(findings).empty();
}

QStringList namedTexts(const check::Findings& findings) {
    constexpr std::size_t most = 6;
    const std::vector<FindingRow> rows = namedRows(findings);
    QStringList texts;
    for (std::size_t i = 0; i < std::min(rows.size(), most); ++i)
        texts.append(rows[i].text());
    if (rows.size() > most)
        texts.append(tr("and %1 more").arg(rows.size() - most));
    return texts;
}

} // namespace torvik
