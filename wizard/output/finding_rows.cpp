// SPDX-License-Identifier: MIT
#include "wizard/output/finding_rows.h"

#include "languages/shown_text.h"

#include <QCoreApplication>

#include <algorithm>

namespace torvik {
namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("FindingRows", text);
}

bool isNamed(const check::FindingRow& row) {
    return row.level() == check::Level::danger ||
           (row.level() == check::Level::wrong && row.kind >= check::Kind::elementLost &&
            row.kind <= check::Kind::clampedArc);
}

std::vector<check::FindingRow> namedRows(const check::Findings& findings) {
    std::vector<check::FindingRow> rows = check::findingRows(findings);
    std::erase_if(rows, [](const check::FindingRow& row) { return !isNamed(row); });
    return rows;
}

} // namespace

QString whereOf(const check::FindingRow& row) {
    QString where = shownText(row.where());
    if (!where.isEmpty())
        where[0] = where[0].toUpper();
    return where;
}

QString saidOf(const check::FindingRow& row) {
    const QString sentence = shownFilled(row.sentence, check::rowOf(row.kind).sentence);
    return row.line == 0 ? sentence : QStringLiteral(": ") + sentence;
}

QString textOf(const check::FindingRow& row) {
    return whereOf(row) + saidOf(row);
}

bool mustBeNamed(const check::Findings& findings) {
    return !namedRows(findings).empty();
}

QStringList namedTexts(const check::Findings& findings) {
    constexpr std::size_t most = 6;
    const std::vector<check::FindingRow> rows = namedRows(findings);
    QStringList texts;
    for (std::size_t i = 0; i < std::min(rows.size(), most); ++i)
        texts.append(textOf(rows[i]));
    if (rows.size() > most)
        texts.append(tr("and %1 more").arg(rows.size() - most));
    return texts;
}

} // namespace torvik
