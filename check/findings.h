// SPDX-License-Identifier: MIT
// The findings of one program. A kind that comes again and again is kept a few times and counted
// from then on, so that a damaged file does not bury its reader.
#pragma once

#include "check/kinds.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace torvik::check {

// What of a job a finding is about: a pen and, where it is drilled, one of its hole sizes
// (subscript of sngRadii). 0 stands for none.
struct PenGroup {
    std::int16_t pen = 0;
    std::int16_t radius = 0;

    bool operator==(const PenGroup&) const = default;
};

struct Finding {
    Kind kind;
    std::uint32_t line; // from 1; 0 where it is about no line
    std::vector<std::string> values;
    PenGroup group{};
};

class Findings {
public:
    static constexpr std::size_t keptOfKind = 20;

    void add(Kind kind, std::uint32_t line, std::vector<std::string> values = {},
             PenGroup group = {});

    // As if none of the kind had been added.
    void forget(Kind kind);

    // By line, those of one line in the order in which they were found.
    std::vector<Finding> byLine() const;
    // How many there are, kept or not.
    std::size_t count(Kind kind) const;
    std::size_t count(Level level) const;
    bool isGood() const; // nothing wrong or dangerous

private:
    std::vector<Finding> m_kept;
    std::array<std::size_t, kindCount> m_counts{};
};

// The sentence of a finding (UTF-8).
std::string sentenceOf(const Finding& finding);

// A piece of a program as it can be shown: UTF-8, at most 40 characters, "?" for control
// characters.
std::string shownText(std::string_view latin1);

// Heights and lengths in mm as the sentences show them; "?" where one is not known.
std::string heightText(double z);
std::string lengthText(double length);

} // namespace torvik::check
