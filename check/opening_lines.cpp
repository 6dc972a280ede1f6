// SPDX-License-Identifier: MIT
#include "check/opening_lines.h"

#include "base/digits.h"
#include "check/lines.h"
#include "check/statement_reader.h"

#include <algorithm>

namespace torvik::check {
namespace {

bool isProgramNumber(std::string_view digits, std::size_t least) {
    constexpr std::size_t most = 5;
    return digits.size() >= least && digits.size() <= most &&
           std::all_of(digits.begin(), digits.end(), isDigit) &&
           (digits.size() == least || digits[0] != '0');
}

// Of the first lines, how many the control understands.
int understoodLines(const Target& target, std::string_view program) {
    constexpr std::size_t triedBytes = 16'000;
    int understood = 0;
    visitLines(program.substr(0, triedBytes), [&](const Line& line) {
        const std::size_t digits = lineNumberDigits(line.text);
        if (digits == 0) {
            const bool isComment = target.commentOpener != 0 && !line.text.empty() &&
                                   line.text[0] == target.commentOpener;
            understood += isComment ? 1 : 0;
            return;
        }
        Findings findings;
        const auto text = line.text.substr(std::min(digits + 2, line.text.size()));
        readStatement(target, text, line.number, findings);
        understood += findings.isGood() ? 1 : 0;
    });
    return understood;
}

} // namespace

bool isOpeningLine(std::string_view pattern, std::string_view line) {
    const auto place = pattern.find('#');
    if (place == pattern.npos)
        return line == pattern;
    return line.starts_with(pattern.substr(0, place)) &&
           isProgramNumber(line.substr(place), pattern.size() - place);
}

const Target* recogniseTarget(std::string_view program) {
    std::string_view first = program.substr(0, program.find('\n'));
    if (first.ends_with('\r'))
        first.remove_suffix(1);
    const auto beginsLike = [&](const Target& target) {
        return isOpeningLine(target.openingLines.front(), first);
    };
    const bool isKnown = std::any_of(targets().begin(), targets().end(), beginsLike);
    const Target* best = nullptr;
    int most = isKnown ? -1 : 0;
    for (const Target& target : targets()) {
        if (isKnown && !beginsLike(target))
            continue;
        if (const int understood = understoodLines(target, program); understood > most) {
            most = understood;
            best = &target;
        }
    }
    return best;
}

std::size_t lineNumberDigits(std::string_view line) {
    if (!line.starts_with('N'))
        return 0;
    std::size_t digits = 0;
    while (digits + 1 < line.size() && isDigit(line[digits + 1]))
        ++digits;
    return digits;
}

} // namespace torvik::check
