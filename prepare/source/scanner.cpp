// SPDX-License-Identifier: MIT
#include "prepare/source/scanner.h"

#include "base/numbers.h"
#include "job/characters.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

namespace torvik {
namespace {

// Whole numbers below this have exact doubles.
constexpr std::ptrdiff_t exactDigits = 15;

// The digits from `at` on, appended to those of `number`; no more than are exact, and one.
const char* readDigits(const char* at, const char* end, std::int64_t& number,
                       std::ptrdiff_t& count) {
    for (; at != end && isDigit(*at) && count <= exactDigits; ++at, ++count)
        number = number * 10 + (*at - '0');
    return at;
}

// A number without sign and exponent that has few digits, as most have; nullptr for others. The
// quotient of two exact numbers is the double nearest to what is written.
const char* readShort(const char* at, const char* end, double& number) {
    static constexpr std::array<double, exactDigits + 1> powersOfTen{
        1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    std::int64_t digits = 0;
    std::ptrdiff_t count = 0;
    at = readDigits(at, end, digits, count);
    std::ptrdiff_t decimals = 0;
    if (at != end && *at == '.') {
        const std::ptrdiff_t before = count;
        at = readDigits(at + 1, end, digits, count);
        decimals = count - before;
    }
    const bool goesOn = at != end && (*at == 'e' || *at == 'E');
    if (count == 0 || count > exactDigits || goesOn)
        return nullptr;
    number = static_cast<double>(digits) / powersOfTen[static_cast<std::size_t>(decimals)];
    return at;
}

// A number without sign; `at` moves behind it. False where none stands there.
bool readUnsigned(const char*& at, const char* end, double& number) {
    if (const char* const behind = readShort(at, end, number)) {
        at = behind;
        return true;
    }
    // Signed exponents and long fractions; "10EA" is the number 10 and another instruction.
    const auto [last, error] = std::from_chars(at, end, number);
    if (error == std::errc::invalid_argument)
        return false;
    if (error == std::errc::result_out_of_range)
        number = leadingNumber({at, static_cast<std::size_t>(last - at)});
    at = last;
    return true;
}

bool isDeviceEscape(char c) {
    return isLetter(c) || c == '(' || c == ')' || c == '@';
}

} // namespace

bool Scanner::readNumber(double& number) {
    const char first = peek();
    const bool isSigned = first == '+' || first == '-';
    const char digit = isSigned ? peek(1) : first;
    if (!isDigit(digit) && digit != '.')
        return false;
    const char* at = m_bytes.data() + m_at + (isSigned ? 1 : 0);
    if (!readUnsigned(at, m_bytes.data() + m_bytes.size(), number))
        return false;
    if (first == '-')
        number = -number;
    m_at = static_cast<std::size_t>(at - m_bytes.data());
    return true;
}

bool Scanner::nextMnemonic(Mnemonic& mnemonic) {
    while (!atEnd()) {
        const char c = peek();
        if (c == escape) {
            skipEscape();
        } else if (m_inPrinter) {
            skipPrinterText();
        } else if (startsWith(jobLineMark)) {
            skipJobLine();
        } else if (c == '.' && isDeviceEscape(peek(1))) {
            skipDeviceEscape(1); // files often lose the escape character before it
        } else if (isLetter(c) && isLetter(peek(1))) {
            mnemonic = {toCapital(c), toCapital(peek(1))};
            m_at += 2;
            return true;
        } else {
            if (!isSeparator(c) && c != ';')
                ++m_strayCharacters;
            ++m_at;
        }
    }
    return false;
}

void Scanner::readNumbers(std::vector<double>& numbers) {
    numbers.clear();
    while (!atEnd()) {
        const char c = peek();
        double number = 0;
        if (isSeparator(c)) {
            ++m_at;
        } else if (readNumber(number)) {
            numbers.push_back(number);
        } else if (c == ';') {
            ++m_at;
            return;
        } else if (c == escape || isLetter(c) || startsWith(jobLineMark)) {
            return;
        } else if (c != '"' || !skipQuoted()) {
            ++m_strayCharacters;
            ++m_at;
        }
    }
}

std::string_view Scanner::readText(char terminator) {
    const std::size_t end = findFrom(m_at, terminator);
    const std::string_view text =
        take(end != std::string_view::npos ? end : m_bytes.find_first_of("\r\n", m_at));
    if (end != std::string_view::npos)
        ++m_at;
    return text;
}

std::string_view Scanner::readCharacter(std::vector<double>& numbers) {
    const char c = peek();
    std::string_view text;
    if (!atEnd() && c != ';' && c != escape && c != '\n' && c != '\r')
        text = take(m_at + 1);
    readNumbers(numbers);
    return text;
}

std::string_view Scanner::readComment() {
    while (isSeparator(peek()) && !atEnd())
        ++m_at;
    const std::size_t start = m_at;
    if (peek() == '"' && skipQuoted())
        return m_bytes.substr(start, m_at - start);
    return take(findFrom(m_at, ';'));
}

std::string_view Scanner::readEncoded() {
    std::size_t end = m_at;
    while (end < m_bytes.size() && m_bytes[end] != ';' && m_bytes[end] != escape)
        ++end;
    return take(end);
}

long Scanner::line() const {
    return 1 + static_cast<long>(std::count(
                   m_bytes.begin(),
                   m_bytes.begin() + static_cast<std::ptrdiff_t>(std::min(m_at, m_bytes.size())),
                   '\n'));
}

std::string_view Scanner::take(std::size_t end) {
    end = std::min(end, m_bytes.size());
    const auto text = m_bytes.substr(m_at, end - m_at);
    m_at = end;
    return text;
}

std::size_t Scanner::findFrom(std::size_t place, char c) {
    // A character looked for in vain is not looked for again, so that many texts without an end
    // take no longer than one.
    bool& isAbsent = m_isAbsent[static_cast<unsigned char>(c)];
    if (isAbsent)
        return std::string_view::npos;
    const std::size_t found = m_bytes.find(c, place);
    isAbsent = found == std::string_view::npos;
    return found;
}

// Passes over a text in quotes; false, and nothing done, where the closing quote is missing.
bool Scanner::skipQuoted() {
    const std::size_t closing = findFrom(m_at + 1, '"');
    if (closing == std::string_view::npos)
        return false;
    m_at = closing + 1;
    return true;
}

} // namespace torvik
