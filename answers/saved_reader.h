// SPDX-License-Identifier: MIT
// Reads the values of a drawing's answers, one after the other, each of the kind that is asked for.
// `what` names the value in messages ("the depth of hole"). Whatever does not stand as expected
// raises FileError with the line.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace torvik {

class SavedReader {
public:
    // The text must outlive the reader.
    SavedReader(std::string_view text, std::string_view fileName)
        : m_rest(text), m_fileName(fileName) {}

    // A whole line without quotes that is not empty.
    void plainLine(std::string_view what, std::string& value);
    // A text in double quotes; line ends in it belong to it.
    void text(std::string_view what, std::string& value);
    // A number that fits a single.
    void number(std::string_view what, float& value);
    // A whole number from -32768 to 32767.
    void whole(std::string_view what, std::int16_t& value);
    void flag(std::string_view what, bool& value);
    // The same for values that the drawing fixes.
    void wholeOfDrawing(std::string_view what, std::size_t expected);
    void flagOfDrawing(std::string_view what, bool expected);

    // CR LF, LF, CR, or the end of the text.
    void endLine();
    // Nothing but blank lines may follow.
    void finish();
    void require(bool holds, std::string_view cause) const;
    // What is not read yet.
    std::string_view rest() const { return m_rest; }

private:
    [[noreturn]] void fail(long line, std::string_view cause) const;
    [[noreturn]] void failValue(std::string_view what, std::string_view cause,
                                std::string_view value) const;
    void beginValue(std::string_view what);
    std::string_view word(std::string_view what); // a value without quotes
    std::string_view restOfLine() const;
    void skipBlanks();
    void skip(std::size_t bytes); // counts the lines

    std::string_view m_rest;
    std::string_view m_fileName;
    long m_line = 1;
    bool m_lineBegins = true;
};

} // namespace torvik
