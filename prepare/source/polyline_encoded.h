// SPDX-License-Identifier: MIT
// The encoded polyline (PE): coordinates as digits of base 64 or 32, each a character of its own,
// the last one of a number marked, with flags between the numbers.
#pragma once

#include <string_view>

namespace torvik {

class EncodedReader {
public:
    enum class Item { number, flag, stray, end };

    explicit EncodedReader(std::string_view characters) : m_rest(characters) {}

    Item next();
    double number() const { return m_number; } // after Item::number, a whole one
    char flag() const { return m_flag; }       // after Item::flag: one of ":<>=" (7 is kept here)

private:
    // The digit and whether it is the last of its number; -1 where the character is no digit.
    int digit(unsigned char c, bool& isLast) const;

    std::string_view m_rest;
    bool m_baseIs32 = false;
    double m_number = 0;
    char m_flag = '\0';
};

} // namespace torvik
