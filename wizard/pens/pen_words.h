// SPDX-License-Identifier: MIT
// What the pen pages say: the rows' names and units, what is wrong with them, and what a page
// is about.
#pragma once

#include "answers/pen_checks.h"

#include <QString>

#include <string_view>

namespace torvik {

struct Job;

QString rowTip(PenForm form, std::size_t row);
// The help context number of a row's topic.
int rowHelp(PenForm form, std::size_t row);
// The unit without its brackets; feedUnits is the job's gstrFeedUnits.
QString rowUnit(PenForm form, std::size_t row, std::string_view feedUnits);
// The name, a blank and the unit in brackets.
QString rowCaption(PenForm form, std::size_t row, std::string_view feedUnits);

// Why a page with that row empty cannot be left yet.
QString emptyText(PenForm form, std::size_t row);
QString faultText(PenForm form, const InputFault& fault);

// The pen of the page on show: "Red holes" or "Red lines".
QString penText(const Job& job);
// What the page on show is about: "6.0 mm diam. holes", "Red holes" or "Red lines".
QString pageSubjectText(const Job& job);

// How far the pages have come: "Pen 3 of 8", "Pen 3 of 8, hole size 1 of 2".
QString pagePlaceText(const Job& job);

} // namespace torvik
