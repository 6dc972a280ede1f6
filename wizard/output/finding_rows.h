// SPDX-License-Identifier: MIT
// What the output page and the question before a dangerous program say of findings.
#pragma once

#include "check/finding_rows.h"

#include <QString>
#include <QStringList>

namespace torvik {

// "Line 213 and 4 more", empty where it is about no line; and what is said behind that.
QString whereOf(const check::FindingRow& row);
QString saidOf(const check::FindingRow& row);
QString textOf(const check::FindingRow& row);

// Whether the user must hear of it before the program is written: what is dangerous, and what is
// not as the job asks for.
bool mustBeNamed(const check::Findings& findings);
// At most six such rows, then "and N more".
QStringList namedTexts(const check::Findings& findings);

} // namespace torvik
