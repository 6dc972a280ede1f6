// SPDX-License-Identifier: MIT
#include "base/errors.h"
#include "base/picture.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace torvik {
namespace {

TEST(FormatFixed, RoundsHalfAwayFromZeroOnTheExactValue) {
    const struct {
        const char* says;
        double value;
        int decimals;
        const char* text;
    } rows[] = {
        {"a half goes up", 0.0625, 3, "0.063"},
        {"less than a half goes down", 0.0625, 2, "0.06"},
        {"a half goes up where the digit before is even", 22.5, 0, "23"},
        {"a half goes up at one decimal", 6.25, 1, "6.3"},
        {"a half below zero goes away from zero", -0.5, 0, "-1"},
        {"a carry runs through all digits", 999.9996, 3, "1000.000"},
        {"no minus sign stands at zero", -0.0004, 3, "0.000"},
        {"no minus sign stands at a negative zero", -0.0, 2, "0.00"},
        {"the first value that does not print as zero has its sign", -0.0005, 3, "-0.001"},
        {"the single 0.0005 is a little more than a half", 0.0005F, 3, "0.001"},
        {"the double 1.0005 is a little less than a half", 1.0005, 3, "1.000"},
        {"the single 0.15 is a little more than a half", 0.15F, 1, "0.2"},
        {"the double 0.15 is a little less than a half", 0.15, 1, "0.1"},
        {"the double before a half goes down", std::nextafter(0.5, 0), 0, "0"},
        {"the smallest single prints as zero", std::numeric_limits<float>::denorm_min(), 3,
         "0.000"},
        {"the largest single prints in full", -std::numeric_limits<float>::max(), 2,
         "-340282346638528859811704183484516925440.00"},
        {"a value without halves keeps its whole part", 9007199254740993.0, 0, "9007199254740992"},
        {"a large value keeps its fraction", 8796093022207.9990234375, 3, "8796093022207.999"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(formatFixed(row.value, row.decimals), row.text) << row.says;
    for (const double value : {double{NAN}, HUGE_VAL, -HUGE_VAL})
        EXPECT_THROW(formatFixed(value, 3), Overflow) << value;
}

// The C library writes every binary digit of the value; the rounding is then done on that text.
std::string roundedText(double value, int decimals) {
    std::string exact(1500, '\0');
    exact.resize(static_cast<std::size_t>(
        std::snprintf(exact.data(), exact.size(), "%.1080f", std::fabs(value))));
    const auto point = exact.find('.');
    const auto cut = point + 1 + static_cast<std::size_t>(decimals);
    std::string digits = "0" + exact.substr(0, point) + exact.substr(point + 1, cut - point - 1);
    if (exact[cut] >= '5') {
        auto at = digits.size();
        while (digits[--at] == '9')
            digits[at] = '0';
        ++digits[at];
    }
    const bool zero = digits.find_first_not_of('0') == std::string::npos;
    if (digits[0] == '0')
        digits.erase(0, 1);
    if (decimals > 0)
        digits.insert(digits.size() - static_cast<std::size_t>(decimals), ".");
    return (value < 0 && !zero ? "-" : "") + digits;
}

TEST(FormatFixed, AgreesWithTheRoundingOfTheFullDecimalText) {
    std::mt19937_64 random(7);
    for (int i = 0; i < 3000; ++i) {
        const std::uint64_t bits = random();
        // A value of any size, a single, a length such as a drawing has, and the neighbours of a
        // half.
        const double half = static_cast<double>(bits % 400001) / 2000.0 - 100.0;
        for (const double value :
             {std::bit_cast<double>(bits),
              double{std::bit_cast<float>(static_cast<std::uint32_t>(bits))},
              double{static_cast<float>(half)}, half, std::nextafter(half, -1e9),
              static_cast<double>(bits >> 13) / 2048.0})
            for (int decimals = 0; decimals <= 3 && std::isfinite(value); ++decimals)
                ASSERT_EQ(formatFixed(value, decimals), roundedText(value, decimals))
                    << std::bit_cast<std::uint64_t>(value);
    }
}

TEST(FormatInteger, PutsLeadingZeros) {
    EXPECT_EQ(formatInteger(7, 2) + " " + formatInteger(123, 2) + " " + formatInteger(-7, 4),
              "07 123 -0007");
}

TEST(FormatGeneral, IsTheShortestPlainTextOfTheSingle) {
    EXPECT_EQ(formatGeneral(-2000.1F), "-2000.1");
    EXPECT_EQ(formatGeneral(-0.0F), "0");
    EXPECT_EQ(formatGeneral(1.0F / 3), "0.33333334");
    EXPECT_EQ(formatGeneral(1e-7F), "0.0000001");
    EXPECT_EQ(formatGeneral(1e10F), "10000000000");
    EXPECT_THROW(formatGeneral(std::numeric_limits<float>::infinity()), Overflow);
}

} // namespace
} // namespace torvik
