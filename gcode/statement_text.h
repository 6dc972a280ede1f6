// SPDX-License-Identifier: MIT
// The text of one statement, put together in place. Lengths, feeds and heights become text here
// and nowhere else.
#pragma once

#include "base/picture.h"
#include "gcode/dialects.h"

#include <array>
#include <cstring>
#include <string_view>

namespace torvik {

class StatementText {
public:
    StatementText() = default;
    StatementText(std::string_view text) { put(text); }

    void clear() { m_size = 0; }
    std::string_view text() const { return {m_text.data(), m_size}; }
    operator std::string_view() const { return text(); }

    StatementText& put(std::string_view text) {
        std::memcpy(m_text.data() + m_size, text.data(), text.size());
        m_size += text.size();
        return *this;
    }
    // A word of a Z value, "0.00".
    StatementText& height(std::string_view word, float z) { return number(word, z, 2); }
    // A word of a coordinate in the plane, "0.000".
    StatementText& position(std::string_view word, float value) { return number(word, value, 3); }
    // " F" and a feed of the job (mm/min) in the dialect's unit and format.
    StatementText& feed(const Dialect& dialect, float feed) {
        return number(" F", feed / dialect.feedDivisor, dialect.feedDecimals);
    }

private:
    StatementText& number(std::string_view word, double value, int decimals) {
        put(word);
        char* const start = m_text.data() + m_size;
        m_size += static_cast<std::size_t>(putFixed(start, value, decimals) - start);
        return *this;
    }

    // Room for five numbers of any size and the words before them.
    std::array<char, 5 * (maxFixedLength + 8)> m_text;
    std::size_t m_size = 0;
};

} // namespace torvik
