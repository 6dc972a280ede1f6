// SPDX-License-Identifier: MIT
// What was done to a drawing, in words: rows for a table, or a text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace torvik {

struct PrepareReport;

struct ReportRow {
    std::string what;
    std::string value;
};

std::vector<ReportRow> reportRows(const PrepareReport& report);

// The rows under the drawing's name.
std::string reportText(std::string_view name, const PrepareReport& report);

// What a drawing lost, and how many of each; none where it lost nothing.
std::vector<ReportRow> lossRows(const PrepareReport& report);

// The same in one line.
std::string lossLine(const PrepareReport& report);

} // namespace torvik
