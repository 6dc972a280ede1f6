// SPDX-License-Identifier: MIT
#include "answers/job_checks.h"

#include "base/errors.h"
#include "base/numbers.h"
#include "base/text.h"

namespace torvik {
namespace {

constexpr float perMinute = 1;
constexpr float perSecond = 60;

// None where the number does not fit the field.
std::optional<float> heightIn(const std::string& text) {
    try {
        return toSingle(leadingNumber(text));
    } catch (const Overflow&) {
        return std::nullopt;
    }
}

} // namespace

void storeHeights(const HeightTexts& texts, Answers& answers) {
    for (std::size_t i = 0; i < texts.size(); ++i)
        if (const auto height = heightIn(texts[i]))
            answers.*heightFields[i] = *height;
}

std::optional<HeightFault> heightFault(const HeightTexts& texts) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (!texts[i].empty() && !isNumber(trimBlanks(texts[i])))
            return HeightFault{i, HeightFault::Kind::notNumber};
        if (!heightIn(texts[i]))
            return HeightFault{i, HeightFault::Kind::tooLarge};
        if (leadingNumber(texts[i]) == 0)
            return HeightFault{i, HeightFault::Kind::zero};
    }
    return std::nullopt;
}

void chooseFeedUnits(bool isMinute, Answers& answers) {
    answers.gstrFeedUnits = isMinute ? "(mm/min)" : "(mm/sec)";
    answers.gsngFeedFactor = isMinute ? perMinute : perSecond;
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
