// SPDX-License-Identifier: MIT
#include "answers/saved_reader.h"

#include "answers/saved_text.h"
#include "base/errors.h"
#include "base/numbers.h"

#include <algorithm>
#include <charconv>

namespace torvik {
namespace {

constexpr std::string_view blanks = " \t";
constexpr std::string_view lineEnds = "\r\n";
constexpr std::size_t shownLength = 20; // bytes of a wrong value that a message repeats

std::string shown(std::string_view value) {
    std::string text(value.substr(0, shownLength));
    std::replace_if(
        text.begin(), text.end(), [](unsigned char c) { return c < 32 || c > 126; }, '?');
    return '"' + text + (value.size() > shownLength ? "...\"" : "\"");
}

} // namespace

void SavedReader::plainLine(std::string_view what, std::string& value) {
    value = savedDigest(m_rest);
    require(!value.empty(), std::string(what) + " is missing");
    m_rest.remove_prefix(value.size());
    endLine();
}

void SavedReader::text(std::string_view what, std::string& value) {
    beginValue(what);
    if (!m_rest.starts_with('"'))
        failValue(what, " does not stand in double quotes: ", restOfLine());
    m_rest.remove_prefix(1);
    value.clear();
    const long firstLine = m_line;
    for (bool open = true; open;) {
        const auto quote = m_rest.find('"');
        if (quote == std::string_view::npos)
            fail(firstLine, std::string(what) + " has no closing quote");
        value += m_rest.substr(0, quote);
        skip(quote + 1);
        open = m_rest.starts_with('"');
        if (open) {
            value += '"';
            m_rest.remove_prefix(1);
        }
    }
}

void SavedReader::number(std::string_view what, float& value) {
    const std::string_view text = word(what);
    // Straight to single: the way over a double could round twice.
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    const bool isNumber = error != std::errc::invalid_argument &&
                          end == text.data() + text.size() &&
                          text.find_first_not_of("0123456789.eE+-") == std::string_view::npos;
    if (!isNumber)
        failValue(what, " is no number: ", text);
    try {
        if (error == std::errc::result_out_of_range)
            value = toSingle(leadingNumber(text));
    } catch (const Overflow&) {
        failValue(what, " is too large: ", text);
    }
}

void SavedReader::whole(std::string_view what, std::int16_t& value) {
    const std::string_view text = word(what);
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size())
        failValue(what, " is no whole number from -32768 to 32767: ", text);
}

void SavedReader::flag(std::string_view what, bool& value) {
    const std::string_view text = word(what);
    value = text == "#TRUE#";
    if (!value && text != "#FALSE#")
        failValue(what, " is neither #TRUE# nor #FALSE#: ", text);
}

void SavedReader::wholeOfDrawing(std::string_view what, std::size_t expected) {
    std::int16_t value = 0;
    whole(what, value);
    require(value >= 0 && static_cast<std::size_t>(value) == expected,
            std::string(what) + " is " + std::to_string(value) + ", in the drawing it is " +
                std::to_string(expected));
}

void SavedReader::flagOfDrawing(std::string_view what, bool expected) {
    bool value = false;
    flag(what, value);
    require(value == expected, std::string(what) + " is not the drawing's");
}

void SavedReader::endLine() {
    skipBlanks();
    if (!m_rest.empty()) {
        const std::string_view more = restOfLine();
        if (!more.empty())
            failValue("the line", " should end here, but goes on: ", more);
        skip(m_rest.starts_with(lineEnds) ? 2 : 1);
    }
    m_lineBegins = true;
}

void SavedReader::finish() {
    skip(std::min(m_rest.find_first_not_of(" \t\r\n"), m_rest.size()));
    if (!m_rest.empty())
        failValue("the file", " should end here, but goes on: ", restOfLine());
}

void SavedReader::require(bool holds, std::string_view cause) const {
    if (!holds)
        fail(m_line, cause);
}

void SavedReader::fail(long line, std::string_view cause) const {
    throw FileError(std::string(m_fileName), std::string(cause), line);
}

void SavedReader::failValue(std::string_view what, std::string_view cause,
                            std::string_view value) const {
    fail(m_line, std::string(what).append(cause).append(shown(value)));
}

void SavedReader::beginValue(std::string_view what) {
    skipBlanks();
    require(!m_rest.empty(), "the file ends before " + std::string(what));
    if (!m_lineBegins) {
        if (!m_rest.starts_with(','))
            failValue("a comma is missing before ", what, restOfLine());
        m_rest.remove_prefix(1);
        skipBlanks();
    }
    m_lineBegins = false;
}

std::string_view SavedReader::word(std::string_view what) {
    beginValue(what);
    std::string_view text = m_rest.substr(0, m_rest.find_first_of(",\r\n"));
    m_rest.remove_prefix(text.size());
    text = text.substr(0, text.find_last_not_of(blanks) + 1);
    require(!text.empty(), std::string(what) + " is missing");
    return text;
}

std::string_view SavedReader::restOfLine() const {
    return m_rest.substr(0, m_rest.find_first_of(lineEnds));
}

void SavedReader::skipBlanks() {
    m_rest.remove_prefix(std::min(m_rest.find_first_not_of(blanks), m_rest.size()));
}

void SavedReader::skip(std::size_t bytes) {
    for (std::size_t at = 0; at < bytes; ++at) {
        const bool pair = m_rest.substr(at).starts_with(lineEnds);
        if (m_rest[at] == '\n' || (m_rest[at] == '\r' && !pair))
            ++m_line;
    }
    m_rest.remove_prefix(bytes);
}

} // namespace torvik
