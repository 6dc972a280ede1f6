// SPDX-License-Identifier: MIT
// How a program of each control looks: one row of one table for each. Nobody else of this room asks
// which control it is. It knows nothing of the writer, on purpose.
#pragma once

#include "check/pace.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace torvik::check {

// What a statement means.
enum class Meaning : std::uint8_t {
    unknown,     // none of the control's statements
    unknownMove, // the same, and it moves an axis
    coordinates, // G54
    feedMode,    // G97 G94
    zeroShift,   // G58
    unload,      // G49
    pause,       // M1
    stop,        // M0
    tool,
    spindleOn,
    rapidHeight,
    retract, // to a height, and the spindle stops
    rapidAcross,
    feedHeight,
    cutLine,
    cutClockwise,
    cutCounterClockwise,
    dwell,
    programEnd, // M30
    percent,    // "%", without a number
};

// A statement as it is written, "#" for a number.
struct StatementForm {
    constexpr StatementForm(std::string_view written, Meaning means)
        : pattern(written), meaning(means) {
        while (!written.empty()) {
            const auto end = std::min(written.find(' '), written.size());
            m_words[m_count++] = written.substr(0, end);
            written.remove_prefix(std::min(end + 1, written.size()));
        }
    }

    // Those of the pattern.
    constexpr std::span<const std::string_view> words() const { return {m_words.data(), m_count}; }

    std::string_view pattern;
    Meaning meaning;

private:
    std::array<std::string_view, 6> m_words{};
    std::size_t m_count = 0;
};

struct Target {
    std::string_view name;
    std::string_view optionName;
    std::string_view fileStart; // of a program's file name, digits follow; else empty
    std::string_view fileEnd;   // of a program's file name, in small letters; else empty
    // The lines before the first block number; "#" for the program number, "####" with four digits.
    std::span<const std::string_view> openingLines;
    char commentOpener;                   // 0: a text of its own lies beside the program
    char commentCloser;                   // 0: a comment ends with its line
    std::span<const Meaning> opening;     // the first statements
    std::span<const StatementForm> forms; // besides those that all controls have
    std::span<const Meaning> beforeFirstTool;
    std::span<const Meaning> beforeTool;
    std::span<const Meaning> ending; // the last statements, behind the last height
    int (*offsetOf)(int tool);       // the offset number of a tool, nullptr where none is written
    char offsetLetter;
    int feedDecimals;
    double feedFactor; // a written feed times this is mm/min
    int dwellDecimals;
    double dwellFactor; // a written dwell times this is seconds
    bool stopsSpindle;  // it has a statement for that
    Pace pace;          // of the machine behind it, as long as the workshop sets nothing
};

std::span<const Target> targets();
// By its option name; nullptr where the check does not know the control.
const Target* findTarget(std::string_view optionName);

// The statements that all controls have.
std::span<const StatementForm> commonForms();
// How a statement of this meaning is written; empty where the control has none.
std::string_view patternOf(const Target& target, Meaning meaning);

} // namespace torvik::check
