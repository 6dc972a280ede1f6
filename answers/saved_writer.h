// SPDX-License-Identifier: MIT
// Writes the values of a drawing's answers, line by line. It has the same procedures as SavedReader
// has, so that one description of the layout serves both.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace torvik {

class SavedWriter {
public:
    void plainLine(std::string_view what, const std::string& value);
    void text(std::string_view what, const std::string& value);
    // Raises Overflow for what is no finite number.
    void number(std::string_view what, float value);
    void whole(std::string_view what, std::int16_t value);
    void flag(std::string_view what, bool value);
    void wholeOfDrawing(std::string_view what, std::size_t value);
    void flagOfDrawing(std::string_view what, bool value) { flag(what, value); }
    void endLine();
    void finish();
    // Raises InvalidCall with the cause where the condition, on which the reader insists, fails.
    static void require(bool holds, std::string_view cause);

    std::string take() { return std::move(m_text); }

private:
    void separate();

    std::string m_text;
    bool m_lineBegins = true;
};

} // namespace torvik
