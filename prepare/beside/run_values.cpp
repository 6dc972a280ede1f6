// SPDX-License-Identifier: MIT
#include "prepare/beside/run_values.h"

#include "job/records.h"

#include <array>
#include <charconv>
#include <optional>

namespace torvik {
namespace {

// The part before the mark; the text then begins behind it. Without a mark all of the text.
std::string_view takeUpTo(std::string_view& text, char mark) {
    const std::size_t end = text.find(mark);
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return part;
}

template <typename Number>
std::optional<Number> numberIn(std::string_view text, Number least, Number most) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || !(number >= least) ||
        !(number <= most))
        return {};
    return number;
}

std::optional<int> penIn(std::string_view text) {
    return numberIn<int>(text, 1, penCount);
}

constexpr std::array<std::string_view, 3> sides{"outside", "inside", "pocket"};
constexpr double leastMm = 0.01; // mm, of tools and tabs
constexpr double mostMm = 1000;

} // namespace

bool readRun(std::string_view value, RunOptions& options) {
    const auto pen = penIn(takeUpTo(value, '='));
    const std::string_view side = takeUpTo(value, ':');
    const auto diameter = numberIn(takeUpTo(value, ','), leastMm, mostMm);
    if (!pen || !diameter)
        return false;
    for (std::size_t i = 0; i < sides.size(); ++i) {
        if (side != sides[i])
            continue;
        PenRun run{static_cast<RunSide>(i), *diameter};
        if (!value.empty()) {
            const auto step = numberIn<double>(value, 1, 100);
            if (!step || run.side != RunSide::pocket)
                return false;
            run.stepPercent = *step;
        }
        options.runs[*pen] = run;
        return true;
    }
    return false;
}

bool readTabs(std::string_view value, RunOptions& options) {
    const auto from = penIn(takeUpTo(value, '='));
    const auto to = penIn(takeUpTo(value, ':'));
    const auto count = numberIn<int>(takeUpTo(value, ':'), 1, 100);
    const auto length = numberIn(value, leastMm, mostMm);
    if (!from || !to || !count || !length || *from == *to)
        return false;
    options.tabs.push_back({*from, *to, *count, *length});
    return true;
}

} // namespace torvik
