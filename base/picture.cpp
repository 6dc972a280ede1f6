// SPDX-License-Identifier: MIT
#include "base/picture.h"

#include "base/errors.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace torvik {
namespace {

constexpr std::array<double, 4> powersOfTen{1.0, 10.0, 100.0, 1000.0};
// Below 2^52 a double still has halves, and the digits fit a 64-bit integer.
constexpr double halvesLimit = 4503599627370496.0;

// value * power, for a value >= 0 and a product below halvesLimit, rounded half up on the exact
// product: where the stored product falls on a half, its own rounding error decides.
std::uint64_t roundedProduct(double value, double power) {
    const double product = value * power;
    auto whole = static_cast<std::int64_t>(product); // the processor knows those with a sign
    const double fraction = product - static_cast<double>(whole);
    if (fraction > 0.5 || (fraction == 0.5 && std::fma(value, power, -product) >= 0))
        ++whole;
    return static_cast<std::uint64_t>(whole);
}

// The value with at least so many digits.
char* putDigits(char* out, std::uint64_t value, int atLeast) {
    std::array<char, 20> digits;
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    for (auto missing = atLeast - (end - digits.data()); missing > 0; --missing)
        *out++ = '0';
    return std::copy(static_cast<const char*>(digits.data()), end, out);
}

// The numbers below a thousand with three digits each.
constexpr auto threeDigits = [] {
    std::array<std::array<char, 3>, 1000> texts{};
    for (std::size_t i = 0; i < texts.size(); ++i)
        texts[i] = {static_cast<char>('0' + i / 100), static_cast<char>('0' + i / 10 % 10),
                    static_cast<char>('0' + i % 10)};
    return texts;
}();

// The last digits of a number below a thousand.
template <std::size_t Count>
char* putLast(char* out, std::size_t number) {
    std::memcpy(out, threeDigits[number].data() + 3 - Count, Count);
    return out + Count;
}

char* putWhole(char* out, std::uint64_t whole) {
    if (whole < 10)
        return putLast<1>(out, whole);
    if (whole < 100)
        return putLast<2>(out, whole);
    if (whole < 1000)
        return putLast<3>(out, whole);
    return std::to_chars(out, out + 20, whole).ptr;
}

template <std::size_t Decimals, std::uint64_t Power>
char* putScaled(char* out, std::uint64_t scaled) {
    out = putWhole(out, scaled / Power);
    *out++ = '.';
    return putLast<Decimals>(out, scaled % Power);
}

// Divisions by constants: most of a program's text is made here.
char* putDecimals(char* out, std::uint64_t scaled, int decimals) {
    switch (decimals) {
    case 0:
        return putWhole(out, scaled);
    case 1:
        return putScaled<1, 10>(out, scaled);
    case 2:
        return putScaled<2, 100>(out, scaled);
    default:
        return putScaled<3, 1000>(out, scaled);
    }
}

} // namespace

char* putFixed(char* out, double value, int decimals) {
    if (!std::isfinite(value))
        throw Overflow("a number to be written is not a finite number");
    const double power = powersOfTen[static_cast<std::size_t>(decimals)];
    const double size = std::fabs(value);
    if (size * power < halvesLimit) {
        const std::uint64_t scaled = roundedProduct(size, power);
        if (value < 0 && scaled > 0)
            *out++ = '-';
        return putDecimals(out, scaled, decimals);
    }
    // A large number: its whole part is printed in full, its fraction rounded alone. That never
    // carries: so large a number has too few binary places to come close enough to the next one.
    double whole = 0;
    const std::uint64_t fraction = roundedProduct(std::modf(size, &whole), power);
    if (value < 0)
        *out++ = '-';
    out = std::to_chars(out, out + maxFixedLength - 8, whole, std::chars_format::fixed, 0).ptr;
    if (decimals > 0) {
        *out++ = '.';
        out = putDigits(out, fraction, decimals);
    }
    return out;
}

char* putInteger(char* out, long value) {
    if (value >= 0)
        return putWhole(out, static_cast<std::uint64_t>(value));
    return std::to_chars(out, out + 21, value).ptr;
}

std::string formatFixed(double value, int decimals) {
    std::array<char, maxFixedLength> text;
    return {text.data(), putFixed(text.data(), value, decimals)};
}

std::string formatInteger(long value, int digits) {
    std::array<char, 32> text;
    char* out = text.data();
    if (value < 0)
        *out++ = '-';
    out = putDigits(out, static_cast<std::uint64_t>(std::labs(value)), digits);
    return {text.data(), out};
}

std::string formatGeneral(float value) {
    if (!std::isfinite(value))
        throw Overflow("a number to be written is not a finite number");
    std::array<char, maxFixedLength> text;
    const float plain = value == 0.0F ? 0.0F : value;
    const auto end =
        std::to_chars(text.data(), text.data() + text.size(), plain, std::chars_format::fixed);
    return {text.data(), end.ptr};
}

} // namespace torvik
