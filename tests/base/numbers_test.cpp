// SPDX-License-Identifier: MIT
#include "base/errors.h"
#include "base/numbers.h"

#include <gtest/gtest.h>
#include <string>

namespace torvik {
namespace {

TEST(LeadingNumber, ReadsWhatTheTextStartsWith) {
    const struct {
        const char* says;
        std::string_view text;
        double number;
    } rows[] = {
        {"an empty text is 0", "", 0},
        {"a list ends at its comma", "20,30,40", 20},
        {"letters end the number", "12abc", 12},
        {"blanks and tabs before the number are skipped", " \t 12", 12},
        {"a line break before the number is not", "\n12", 0},
        {"a blank inside ends the number", "1 2", 1},
        {"a blank after the sign leaves no number", "- 5", 0},
        {"a plus sign is read", "+7", 7},
        {"a minus sign is read", "-7.25", -7.25},
        {"a second sign leaves no number", "--5", 0},
        {"no digit is needed before the point", "-.5", -0.5},
        {"no digit is needed after the point", "5.", 5},
        {"a point alone is 0", ".", 0},
        {"an exponent without any digit before it is 0", ".E5", 0},
        {"a second point ends the number", "1.2.3", 1.2},
        {"an exponent may have any of four letters: E", "1E3", 1000},
        {"... e", "1e-3,", 0.001},
        {"... D", "2D2", 200},
        {"... d", "5.d+1", 50},
        {"a letter E without digits is no exponent", "3E", 3},
        {"a hexadecimal number is its 0", "0x1F", 0},
        {"infinity is no number", "inf", 0},
        {"neither is NaN", "-nan", 0},
        {"a NUL byte ends the number", std::string_view("1\0002", 3), 1},
        {"a byte that is not ASCII ends the number", "1\xC2\xB2", 1},
        {"a long number is the nearest double", "123456789012345678901", 123456789012345678901.0},
        {"what is too small for a double is 0", "1e-400", 0},
        {"... and where its exponent has twenty digits", "1e-99999999999999999999", 0},
        {"a large mantissa and a small exponent meet", "1000000e-300", 1e-294},
    };
    for (const auto& row : rows)
        EXPECT_EQ(leadingNumber(row.text), row.number) << row.says;
    EXPECT_EQ(leadingNumber("0." + std::string(400, '0') + "1E5"), 0);
}

TEST(LeadingNumber, RaisesOverflowWhereADoubleCannotHoldIt) {
    for (const char* text : {"1e309", "-1e309", "0.001d312", "1e99999999999999999999"})
        EXPECT_THROW(leadingNumber(text), Overflow) << text;
    EXPECT_THROW(leadingNumber("1" + std::string(400, '0')), Overflow);
}

TEST(Store, RoundsHalfToEvenAndRaisesOverflowOutsideTheRange) {
    const struct {
        double value;
        std::int16_t stored;
    } rows[] = {{0.5, 0},          {1.5, 2},       {2.5, 2},       {-0.5, 0},
                {-1.5, -2},        {2.5000001, 3}, {2.4999999, 2}, {32767.4999, 32767},
                {-32768.5, -32768}};
    for (const auto& row : rows)
        EXPECT_EQ(toInt16(row.value), row.stored) << row.value;
    for (const double value : {32767.5, -32768.51, 1e300, double{NAN}})
        EXPECT_THROW(toInt16(value), Overflow) << value;

    EXPECT_EQ(toSingle(16777217), 16777216.0F) << "a tie goes to the even single";
    EXPECT_EQ(toSingle(16777219), 16777220.0F) << "a tie goes to the even single";
    EXPECT_EQ(toSingle(3.4028235e38), 3.4028235e38F);
    for (const double value : {3.4028236e38, -1e39, HUGE_VAL, double{NAN}})
        EXPECT_THROW(toSingle(value), Overflow) << value;
}

} // namespace
} // namespace torvik
