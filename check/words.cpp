// SPDX-License-Identifier: MIT
#include "check/words.h"

#include "base/digits.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace torvik::check {
namespace {

constexpr std::int64_t mostValue = 1'000'000;
constexpr std::ptrdiff_t mostWholeDigits = 7;
constexpr double notRead = std::numeric_limits<double>::quiet_NaN();

bool isCapital(char c) {
    return c >= 'A' && c <= 'Z';
}

bool endsNumber(char c) {
    return c == ' ' || isCapital(c);
}

} // namespace

Words::Words(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const bool isFirst = m_count == 0;
        const bool blankBefore = text[at] == ' ';
        if (blankBefore)
            ++at;
        m_clean = m_clean && blankBefore != isFirst;
        if (at == text.size() || !isCapital(text[at]) || m_count == most) {
            m_clean = false;
            if (m_count == most)
                return;
            ++at; // what is no word is passed over
            continue;
        }
        const std::size_t start = at++;
        while (at < text.size() && !endsNumber(text[at]))
            ++at;
        m_words[m_count++] = {text.substr(start, at - start)};
    }
}

double takeCleanNumber(std::string_view& text, int decimals) {
    constexpr std::array<std::int64_t, 4> powersOfTen{1, 10, 100, 1000};
    const std::int64_t power = powersOfTen[static_cast<std::size_t>(decimals)];
    const char* at = text.data();
    const char* const end = at + text.size();
    const bool isNegative = at != end && *at == '-';
    at += isNegative ? 1 : 0;
    const char* const first = at;
    std::int64_t digits = 0;
    for (; at != end && isDigit(*at) && at - first <= mostWholeDigits; ++at)
        digits = digits * 10 + (*at - '0');
    if (at == first || at - first > mostWholeDigits || (at - first > 1 && *first == '0'))
        return notRead;
    if (decimals > 0) {
        if (end - at <= decimals || *at != '.')
            return notRead;
        const char* const last = ++at + decimals;
        for (; at != last; ++at) {
            if (!isDigit(*at))
                return notRead;
            digits = digits * 10 + (*at - '0');
        }
    }
    if (digits > mostValue * power || (isNegative && digits == 0))
        return notRead;
    text.remove_prefix(static_cast<std::size_t>(at - text.data()));
    // So few digits that the quotient is the double nearest to what is written.
    const double value = static_cast<double>(digits) / static_cast<double>(power);
    return isNegative ? -value : value;
}

WrittenNumber readNumber(std::string_view text, int decimals) {
    std::string_view rest = text;
    double value = takeCleanNumber(rest, decimals);
    if (!std::isnan(value) && rest.empty())
        return {value, true};
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value, std::chars_format::fixed);
    const bool isRead = read.ec == std::errc() && read.ptr == end && std::fabs(value) <= mostValue;
    return {isRead ? value : notRead, false};
}

} // namespace torvik::check
