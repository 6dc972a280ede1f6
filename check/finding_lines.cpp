// SPDX-License-Identifier: MIT
#include "check/finding_lines.h"

#include "base/picture.h"

namespace torvik::check {
namespace {

bool isShown(Kind kind, bool quiet) {
    return !quiet || rowOf(kind).level >= Level::wrong;
}

std::string countText(std::size_t count) {
    return formatInteger(static_cast<long>(count));
}

} // namespace

std::string findingLines(std::string_view file, const Findings& findings, bool quiet) {
    std::string text;
    const std::string name(file);
    for (const Finding& finding : findings.byLine())
        if (isShown(finding.kind, quiet))
            text += name + (finding.line > 0 ? ":" + countText(finding.line) : "") + ": " +
                    std::string(rowOf(finding.kind).name) + ": " + sentenceOf(finding) + "\n";
    for (const KindRow& row : kinds())
        if (const auto count = findings.count(row.kind);
            count > Findings::keptOfKind && isShown(row.kind, quiet))
            text += name + ": " + std::string(row.name) + ": " +
                    countText(count - Findings::keptOfKind) + " more of this kind\n";
    return text;
}

} // namespace torvik::check
