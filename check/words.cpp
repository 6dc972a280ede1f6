// SPDX-License-Identifier: MIT
#include "check/words.h"

#include "base/digits.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace torvik::check {
namespace {

bool isCapital(char c) {
    return c >= 'A' && c <= 'Z';
}

bool endsNumber(char c) {
    return c == ' ' || isCapital(c);
}

bool isWritten(std::string_view text, int decimals) {
    const auto point = std::min(text.find('.'), text.size());
    const std::string_view whole = text.substr(0, point);
    const std::string_view part = text.substr(point);
    if (whole.empty() || (whole.size() > 1 && whole[0] == '0'))
        return false;
    if (part.size() != (decimals == 0 ? 0 : static_cast<std::size_t>(decimals) + 1))
        return false;
    return std::all_of(whole.begin(), whole.end(), isDigit) &&
           std::all_of(part.begin() + (part.empty() ? 0 : 1), part.end(), isDigit);
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
        m_words[m_count++] = {text[start], text.substr(start + 1, at - start - 1),
                              text.substr(start, at - start)};
    }
}

WrittenNumber readNumber(std::string_view text, int decimals) {
    constexpr double most = 1e6;
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    double value = none;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, value, std::chars_format::fixed);
    if (read.ec != std::errc() || read.ptr != end || !(std::fabs(value) <= most))
        return {none, false};
    const bool isNegative = text[0] == '-';
    const bool isZero = value == 0;
    return {value, isWritten(text.substr(isNegative ? 1 : 0), decimals) && !(isNegative && isZero)};
}

} // namespace torvik::check
