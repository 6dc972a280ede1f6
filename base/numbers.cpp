// SPDX-License-Identifier: MIT
#include "base/numbers.h"

#include "base/digits.h"
#include "base/errors.h"

#include <charconv>
#include <string>

namespace torvik {
namespace {

const char* skipDigits(const char* at, const char* end) {
    while (at != end && isDigit(*at))
        ++at;
    return at;
}

// The end of an exponent that starts at `at`, or `at` itself where none stands there.
const char* skipExponent(const char* at, const char* end) {
    if (at == end || (*at != 'E' && *at != 'e' && *at != 'D' && *at != 'd'))
        return at;
    const char* digits = at + 1;
    if (digits != end && (*digits == '+' || *digits == '-'))
        ++digits;
    const char* last = skipDigits(digits, end);
    return last == digits ? at : last;
}

// Whether a number too large or too small for a double is the former: the power of ten of its
// first digit that is not zero tells.
bool isLarge(const char* at, const char* end) {
    long power = 0;
    bool significant = false;
    bool fraction = false;
    for (; at != end && (isDigit(*at) || *at == '.'); ++at) {
        if (*at == '.') {
            fraction = true;
            continue;
        }
        significant = significant || *at != '0';
        if (fraction && !significant)
            --power;
        else if (!fraction && significant)
            ++power;
    }
    if (at == end)
        return power > 0;
    const bool negative = at[1] == '-';
    long exponent = 0;
    for (++at; at != end; ++at)
        if (isDigit(*at) && exponent < 1'000'000'000)
            exponent = exponent * 10 + (*at - '0');
    return power + (negative ? -exponent : exponent) > 0;
}

// Digits, a point and an exponent of the form that std::from_chars knows.
double parsed(const char* first, const char* last) {
    double value = 0;
    if (std::from_chars(first, last, value).ec == std::errc::result_out_of_range)
        return isLarge(first, last) ? HUGE_VAL : 0.0;
    return value;
}

} // namespace

double leadingNumber(std::string_view text) {
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end && (*at == ' ' || *at == '\t'))
        ++at;
    bool negative = false;
    if (at != end && (*at == '+' || *at == '-'))
        negative = *at++ == '-';

    const char* const whole = at;
    std::uint64_t shortNumber = 0; // right as long as it has at most 15 digits
    for (; at != end && isDigit(*at); ++at)
        shortNumber = shortNumber * 10 + static_cast<std::uint64_t>(*at - '0');
    auto digits = at - whole;
    if (digits > 0 && digits <= 15 && (at == end || *at == ',')) {
        // Most numbers of a drawing are of this kind.
        const auto value = static_cast<double>(shortNumber);
        return negative ? -value : value;
    }
    if (at != end && *at == '.') {
        const char* const fraction = at + 1;
        at = skipDigits(fraction, end);
        digits += at - fraction;
    }
    if (digits == 0)
        return 0;
    const char* const mantissaEnd = at;
    at = skipExponent(at, end);

    double value = 0;
    if (at != mantissaEnd && (*mantissaEnd == 'D' || *mantissaEnd == 'd')) {
        std::string spelt(whole, at);
        spelt[static_cast<std::size_t>(mantissaEnd - whole)] = 'E';
        value = parsed(spelt.data(), spelt.data() + spelt.size());
    } else {
        value = parsed(whole, at);
    }
    if (std::isinf(value))
        throw Overflow();
    return negative ? -value : value;
}

std::int16_t toInt16(double value) {
    // nearbyint rounds half to even in the default rounding mode, which nothing here changes.
    const double rounded = std::nearbyint(value);
    if (!(rounded >= -32768.0 && rounded <= 32767.0))
        throw Overflow("the whole number is outside -32768 to 32767");
    return static_cast<std::int16_t>(rounded);
}

void raiseSingleOverflow() {
    throw Overflow();
}

bool isNumber(std::string_view text) {
    const char* at = text.data();
    const char* const end = at + text.size();
    if (at != end && (*at == '-' || *at == '+'))
        ++at;
    const char* const whole = at;
    at = skipDigits(at, end);
    auto digits = at - whole;
    if (at != end && *at == '.') {
        const char* const fraction = at + 1;
        at = skipDigits(fraction, end);
        digits += at - fraction;
    }
    if (at != end && (*at == 'E' || *at == 'e'))
        at = skipExponent(at, end);
    return digits > 0 && at == end;
}

} // namespace torvik
