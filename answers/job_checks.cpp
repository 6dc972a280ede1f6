// SPDX-License-Identifier: MIT
#include "answers/job_checks.h"

#include "answers/pen_values.h"
#include "answers/saved_answers.h"
#include "base/numbers.h"
#include "base/text.h"

#include <cmath>

namespace torvik {
namespace {

constexpr float perMinute = 1;
constexpr float perSecond = 60;

} // namespace

void storeHeights(const HeightTexts& texts, Answers& answers) {
    for (std::size_t i = 0; i < texts.size(); ++i)
        if (const double height = boxNumber(texts[i]); std::isfinite(height))
            answers.*heightFields[i] = toSingle(height);
}

std::optional<HeightFault> heightFault(const HeightTexts& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!texts[i].empty() && !isNumber(trimBlanks(texts[i])))
            return HeightFault{i, HeightFault::Kind::notNumber};
        const double height = boxNumber(texts[i]);
        if (!std::isfinite(height))
            return HeightFault{i, HeightFault::Kind::tooLarge};
        if (height == 0)
            return HeightFault{i, HeightFault::Kind::zero};
    }
    return std::nullopt;
}

void chooseFeedUnits(bool isMinute, Answers& answers) {
    answers.gsngFeedFactor = isMinute ? perMinute : perSecond;
    answers.gstrFeedUnits = feedUnits(answers.gsngFeedFactor);
}

bool isPerMinute(const Answers& answers) {
    return answers.gsngFeedFactor == perMinute;
}

bool isHeaderLineNeeded(std::size_t line) {
    constexpr std::array<bool, headerLines> needed{true, true, false, false, true, true};
    return needed.at(line);
}

void trimHeader(Answers& answers) {
    for (std::string& line : answers.gstrHeader)
        line = std::string(trimBlanks(line));
}

std::optional<std::size_t> missingHeaderLine(const HeaderTexts& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i)
        if (isHeaderLineNeeded(i) && trimBlanks(texts[i]).empty())
            return i;
    return std::nullopt;
}

} // namespace torvik
