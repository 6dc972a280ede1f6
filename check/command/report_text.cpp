// SPDX-License-Identifier: MIT
#include "check/command/report_text.h"

#include "base/picture.h"
#include "check/finding_lines.h"
#include "check/time/pace_settings.h"

#include <algorithm>
#include <array>

namespace torvik::check {
namespace {

constexpr std::array levels{Level::danger, Level::wrong, Level::look, Level::note};

std::string countText(std::size_t count) {
    return formatInteger(static_cast<long>(count));
}

std::string toolsText(const Summary& summary) {
    std::string text;
    for (const int tool : summary.tools)
        text += (text.empty() ? "T" : " T") + formatInteger(tool);
    return text;
}

std::string cutText(const Summary& summary) {
    const Extents& cut = summary.extents;
    if (std::isnan(cut.lowX))
        return "cuts nothing";
    return "cuts X" + lengthText(cut.lowX) + " to X" + lengthText(cut.highX) + ", Y" +
           lengthText(cut.lowY) + " to Y" + lengthText(cut.highY) + ", " +
           heightText(summary.deepest) + " mm deep";
}

std::string summaryLine(std::string_view file, const Report& report) {
    std::string line(file);
    if (report.target != nullptr) {
        const Summary& summary = report.summary;
        line.append(": ").append(report.target->name).append(", " + cutText(summary));
        if (!summary.tools.empty())
            line += ", tools " + toolsText(summary) + ", " + formatInteger(summary.changes) +
                    (summary.changes == 1 ? " change" : " changes");
        line += ", " + timeText(timeOf(report).minutes);
    }
    std::string counts;
    for (const Level level : levels)
        counts.append(counts.empty() ? ": " : ", ")
            .append(countText(report.findings.count(level)) + " ")
            .append(levelName(level));
    return line + counts + "\n";
}

void putPadded(std::string& line, std::string_view text, std::size_t width) {
    const std::size_t used = widthOf(text);
    line.append(text).append(used < width ? width - used : 0, ' ').append("  ");
}

// The kind of the worst finding, the first of them; "-" where there is none.
std::string_view worstKind(const Findings& findings) {
    const auto found = findings.byLine();
    const auto worst =
        std::max_element(found.begin(), found.end(), [](const Finding& a, const Finding& b) {
            return rowOf(a.kind).level < rowOf(b.kind).level;
        });
    return worst == found.end() ? "-" : rowOf(worst->kind).name;
}

constexpr std::array<std::string_view, 8> columns{"control", "danger", "wrong",   "look",
                                                  "note",    "deep",   "minutes", "first"};

} // namespace

ProgramTime timeOf(const Report& report) {
    return report.target == nullptr ? ProgramTime{}
                                    : programTime(report.moves, paceOf(*report.target));
}

std::string reportText(std::string_view file, const Report& report, bool quiet) {
    const std::string text = findingLines(file, report.findings, quiet);
    return quiet ? text : text + summaryLine(file, report);
}

std::string tableHead(std::size_t width) {
    std::string line;
    putPadded(line, "program", width);
    for (const std::string_view column : columns)
        putPadded(line, column, column.size());
    return line.erase(line.find_last_not_of(' ') + 1) + "\n";
}

std::string tableLine(std::string_view file, const Report& report, std::size_t width) {
    const Findings& findings = report.findings;
    const bool isKnown = report.target != nullptr;
    std::string line;
    putPadded(line, file, width);
    const std::array<std::string, columns.size() - 1> texts{
        isKnown ? std::string(report.target->name) : "-",
        countText(findings.count(Level::danger)),
        countText(findings.count(Level::wrong)),
        countText(findings.count(Level::look)),
        countText(findings.count(Level::note)),
        isKnown ? heightText(report.summary.deepest) : "-",
        isKnown ? formatFixed(roundedMinutes(timeOf(report).minutes), 0) : "-"};
    for (std::size_t i = 0; i < texts.size(); ++i)
        putPadded(line, texts[i], columns[i].size());
    return line.append(worstKind(findings)) + "\n";
}

std::size_t widthOf(std::string_view name) {
    return static_cast<std::size_t>(std::count_if(name.begin(), name.end(), [](char c) {
        return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
    }));
}

} // namespace torvik::check
