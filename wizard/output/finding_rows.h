// SPDX-License-Identifier: MIT
// The findings of a program as rows for people: the worst first, what is said again and again once.
#pragma once

#include "check/findings.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace torvik {

struct FindingRow {
    check::Kind kind;
    std::uint32_t line; // the first; 0 where it is about no line
    std::size_t count;  // how often the same is found
    QString sentence;

    check::Level level() const { return check::rowOf(kind).level; }
    // "Line 213 and 4 more: …".
    QString text() const;
};

// A kind with more findings than are kept counts the others to its last row.
std::vector<FindingRow> findingRows(const check::Findings& findings);

// Whether the user must hear of it before the program is written: what is dangerous, and what is
// not as the job asks for.
bool mustBeNamed(const check::Findings& findings);
// At most six such rows, then "and N more".
QStringList namedTexts(const check::Findings& findings);

} // namespace torvik
