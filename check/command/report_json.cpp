// SPDX-License-Identifier: MIT
#include "base/picture.h"
#include "check/command/report_text.h"

namespace torvik::check {
namespace {

std::string jsonText(std::string_view text) {
    std::string out = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            out += '\\';
        if (static_cast<unsigned char>(c) >= 0x20)
            out += c;
    }
    return out + '"';
}

// "NAME":VALUE, with a comma before all but the first.
void putField(std::string& object, std::string_view name, const std::string& value) {
    object.append(object.back() == '{' ? "" : ",").append(jsonText(name)).append(":").append(value);
}

std::string numberText(double number, int decimals) {
    return std::isfinite(number) ? formatFixed(number, decimals) : "null";
}

std::string findingJson(const Finding& finding) {
    const KindRow& row = rowOf(finding.kind);
    std::string object = "{";
    putField(object, "line", formatInteger(static_cast<long>(finding.line)));
    putField(object, "kind", jsonText(row.name));
    putField(object, "level", jsonText(levelName(row.level)));
    putField(object, "sentence", jsonText(sentenceOf(finding)));
    return object + "}";
}

std::string summaryJson(const Report& report) {
    const Summary& summary = report.summary;
    std::string tools;
    for (const int tool : summary.tools)
        tools += (tools.empty() ? "" : ",") + formatInteger(tool);
    std::string object = "{";
    putField(object, "lowX", numberText(summary.extents.lowX, 3));
    putField(object, "highX", numberText(summary.extents.highX, 3));
    putField(object, "lowY", numberText(summary.extents.lowY, 3));
    putField(object, "highY", numberText(summary.extents.highY, 3));
    putField(object, "deepest", numberText(summary.deepest, 2));
    putField(object, "tools", "[" + tools + "]");
    putField(object, "changes", formatInteger(summary.changes));
    const ProgramTime time = timeOf(report);
    putField(object, "minutes", numberText(time.minutes, 2));
    putField(object, "minutesLookingAhead", numberText(time.lookAhead, 2));
    for (const Level level : {Level::danger, Level::wrong, Level::look, Level::note})
        putField(object, levelName(level),
                 formatInteger(static_cast<long>(report.findings.count(level))));
    return object + "}";
}

} // namespace

std::string reportJson(std::string_view file, const Report& report, bool quiet) {
    std::string findings;
    for (const Finding& finding : report.findings.byLine())
        if (!quiet || rowOf(finding.kind).level >= Level::wrong)
            findings += (findings.empty() ? "" : ",\n  ") + findingJson(finding);
    std::string object = "{";
    putField(object, "file", jsonText(file));
    putField(object, "control",
             report.target == nullptr ? "null" : jsonText(report.target->optionName));
    putField(object, "findings", "[" + findings + "]");
    putField(object, "summary", summaryJson(report));
    return object + "}";
}

} // namespace torvik::check
