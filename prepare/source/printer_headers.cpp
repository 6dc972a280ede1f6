// SPDX-License-Identifier: MIT
// The half of the scanner that passes over what is meant for a printer or for a plotter's
// interface.
#include "base/numbers.h"
#include "job/characters.h"
#include "prepare/source/scanner.h"

#include <algorithm>
#include <string>

namespace torvik {
namespace {

// An escape that says in which language the text goes on: ESC % number letter.
struct LanguageEscape {
    char letter = '\0';
    std::size_t length = 0;
};

LanguageEscape languageEscape(std::string_view text) {
    std::size_t end = 2;
    while (end < text.size() && end < 16 && (isDigit(text[end]) || text[end] == '-'))
        ++end;
    if (end >= text.size())
        return {'\0', text.size()};
    return {text[end], end + 1};
}

constexpr std::size_t longestJobLine = 200;

bool namesPlotterLanguage(std::string_view jobLine) {
    std::string line(jobLine.substr(0, longestJobLine));
    std::transform(line.begin(), line.end(), line.begin(), toCapital);
    const auto language = line.find("LANGUAGE");
    return language != std::string::npos && line.find("ENTER") != std::string::npos &&
           line.find("HPGL", language) != std::string::npos;
}

std::string_view lineAt(std::string_view text, std::size_t place) {
    return text.substr(place, std::min(text.find('\n', place), text.size()) - place);
}

bool entersDrawing(std::string_view bytes) {
    for (auto at = bytes.find("\x1b%"); at != std::string_view::npos;
         at = bytes.find("\x1b%", at + 1))
        if (languageEscape(bytes.substr(at)).letter == 'B')
            return true;
    for (auto at = bytes.find(jobLineMark); at != std::string_view::npos;
         at = bytes.find(jobLineMark, at + 1))
        if (namesPlotterLanguage(lineAt(bytes.substr(at, longestJobLine), 0)))
            return true;
    return false;
}

bool isParameterised(char c) {
    return c >= '!' && c <= '/';
}

} // namespace

Scanner::Scanner(std::string_view bytes) : m_bytes(bytes), m_entersDrawing(entersDrawing(bytes)) {}

void Scanner::skipEscape() {
    const char kind = peek(1);
    if (kind == '.')
        skipDeviceEscape(2);
    else if (kind == '%')
        skipLanguageEscape();
    else if (isParameterised(kind))
        skipPrinterEscape();
    else {
        if (kind == 'E')
            leaveDrawing();
        m_at += 2;
    }
}

// ESC . letter, for some letters numbers and semicolons up to a colon. `toLetter` is where the
// letter stands.
void Scanner::skipDeviceEscape(std::size_t toLetter) {
    m_at += toLetter + 1;
    std::size_t end = m_at;
    while (end < m_bytes.size() && (isDigit(m_bytes[end]) || m_bytes[end] == ';'))
        ++end;
    if (end < m_bytes.size() && m_bytes[end] == ':')
        m_at = end + 1;
}

void Scanner::skipLanguageEscape() {
    const auto [letter, length] = languageEscape(m_bytes.substr(m_at));
    m_at += length;
    if (letter == 'B')
        m_inPrinter = false;
    else if (letter == 'A')
        m_inPrinter = true;
    else if (letter == 'X')
        leaveDrawing();
}

// ESC, a sign, perhaps a small letter, then numbers that each end in a letter; a capital ends it
// all. A number that ends in W or X counts bytes of data.
void Scanner::skipPrinterEscape() {
    m_at += 2;
    while (!atEnd() && peek() != escape) {
        const char* const start = m_bytes.data() + m_at;
        const char* at = start;
        while (at != m_bytes.data() + m_bytes.size() && !isLetter(*at) && *at != '@' &&
               *at != escape && at - start < 32)
            ++at;
        m_at += static_cast<std::size_t>(at - start);
        const char letter = peek();
        if (!isLetter(letter)) {
            m_at += letter == '@' ? 1 : 0;
            return;
        }
        ++m_at;
        if (toCapital(letter) == 'W' || toCapital(letter) == 'X') {
            const double count = leadingNumber({start, static_cast<std::size_t>(at - start)});
            const auto left = static_cast<double>(m_bytes.size() - m_at);
            m_at += static_cast<std::size_t>(std::clamp(count, 0.0, left));
        }
        if (letter == toCapital(letter))
            return;
    }
}

void Scanner::skipPrinterText() {
    if (startsWith(jobLineMark))
        skipJobLine();
    else
        m_at = std::min(m_bytes.find_first_of("\x1b@", m_at + 1), m_bytes.size());
}

void Scanner::skipJobLine() {
    const std::string_view line = lineAt(m_bytes, m_at);
    if (namesPlotterLanguage(line))
        m_inPrinter = false;
    m_at += line.size();
}

// A reset or the end of a job: what follows is the printer's, unless nothing in the file ever says
// that a drawing begins.
void Scanner::leaveDrawing() {
    m_inPrinter = m_entersDrawing;
}

} // namespace torvik
