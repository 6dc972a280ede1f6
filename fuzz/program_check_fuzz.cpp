// SPDX-License-Identifier: MIT
// Any bytes as a program of each control: every finding stands at a line of the program, in a
// sentence without gaps, and the summary is made of numbers.
#include "check/command/report_text.h"
#include "check/lines.h"
#include "fuzz/invariant.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string_view>

namespace torvik::check {
namespace {

void checkReport(const Report& report, std::uint32_t lines) {
    for (const Finding& finding : report.findings.byLine()) {
        holds(finding.line >= 1 && finding.line <= lines, "a finding stands at a line");
        const std::string sentence = sentenceOf(finding);
        holds(sentence.find('{') == sentence.npos || !finding.values.empty(),
              "a sentence has its values");
        holds(!holdsControlCharacter(sentence), "a sentence can be printed");
    }
    const Summary& summary = report.summary;
    const ProgramTime time = timeOf(report);
    holds(std::isfinite(time.minutes) && time.lookAhead >= 0, "the time is a number");
    holds(time.lookAhead <= time.minutes * 1.000001, "to look ahead takes no longer");
    holds(std::isfinite(summary.deepest) && summary.deepest >= 0, "the depth is a number");
    holds(!(summary.extents.lowX > summary.extents.highX), "the extents have their order");
    holds(!reportText("f", report, false).empty(), "a report is never empty");
    holds(!reportJson("f", report, false).empty(), "nor is its JSON");
}

void check(std::string_view bytes) {
    const auto ends = std::count(bytes.begin(), bytes.end(), '\n');
    const auto lines = static_cast<std::uint32_t>(
        std::max<std::ptrdiff_t>(1, bytes.empty() || bytes.back() == '\n' ? ends : ends + 1));
    checkReport(checkProgram(bytes, bytes), lines);
    for (const Target& target : targets())
        checkReport(checkProgram(bytes, bytes, &target), lines);
}

} // namespace
} // namespace torvik::check

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    torvik::check::check({reinterpret_cast<const char*>(data), size});
    return 0;
}
