// SPDX-License-Identifier: MIT
// What stands on a job sheet, as texts: the same for the printer, the file and the tests.
#pragma once

#include "sheet/clamping.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace torvik {

struct Dialect;
struct Job;
struct TriedProgram;

struct SheetField {
    QString caption;
    QString value;
};

struct SheetFinding {
    bool isBad = false; // dangerous or wrong
    QString text;
};

struct SheetContent {
    QString title;   // the name of the part
    QString program; // its file and the control
    QString time;    // "about 12 min"
    std::vector<SheetField> details;
    std::vector<SheetField> setup; // billet, clamping, zero point, heights
    QStringList orderHeads;
    std::vector<QStringList> order;     // a row for each group, in machining order
    std::vector<QStringList> tools;     // a row for each tool, in the order of the changes
    std::vector<SheetFinding> findings; // the worst first
};

// The program must have been tried to its end. Raises SubscriptOutOfRange where a group of it has
// no settings.
SheetContent sheetContent(const Job& job, const Dialect& dialect, const TriedProgram& tried,
                          const Clamping& clamping);

// How many of so many rows are shown where there is room for `room`; the last line of the room then
// says "and N more".
std::size_t rowsShown(std::size_t rows, std::size_t room);
QString andMore(std::size_t rows, std::size_t shown);

} // namespace torvik
