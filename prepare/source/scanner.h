// SPDX-License-Identifier: MIT
// The text of a drawing as mnemonics and parameters. Passes over what printers and plotters want
// said before and after a drawing: device escapes (ESC . ...), printer escapes (ESC E, ESC % ...,
// ESC & ...) with their data, and job lines (@PJL ...). Raises Overflow for a number that does not
// fit a double.
#pragma once

#include "job/plotter_language.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

namespace torvik {

class Scanner {
public:
    explicit Scanner(std::string_view bytes);

    // The next instruction's letters in capitals; false at the end of the drawing.
    bool nextMnemonic(Mnemonic& mnemonic);

    // Numbers up to the next instruction; text in quotes between them is passed over.
    void readNumbers(std::vector<double>& numbers);
    // The characters up to the terminator, which is passed over. Where the text has no terminator,
    // it ends with its line.
    std::string_view readText(char terminator);
    // One character, or nothing where the instruction ends here, and the numbers behind it.
    std::string_view readCharacter(std::vector<double>& numbers);
    // A text in quotes, or else all up to the semicolon.
    std::string_view readComment();
    // The characters of an encoded polyline.
    std::string_view readEncoded();

    long line() const; // where the scanner stands, from 1
    long strayCharacters() const { return m_strayCharacters; }

private:
    bool atEnd() const { return m_at >= m_bytes.size(); }
    char peek(std::size_t ahead = 0) const {
        return m_at + ahead < m_bytes.size() ? m_bytes[m_at + ahead] : '\0';
    }
    bool startsWith(std::string_view text) const {
        return m_bytes.substr(m_at, text.size()) == text;
    }
    std::string_view take(std::size_t end);
    std::size_t findFrom(std::size_t place, char c);
    bool readNumber(double& number);
    bool skipQuoted();

    void skipEscape();
    void skipDeviceEscape(std::size_t toLetter);
    void skipLanguageEscape();
    void skipPrinterEscape();
    void skipPrinterText();
    void skipJobLine();
    void leaveDrawing();

    std::string_view m_bytes;
    std::size_t m_at = 0;
    bool m_inPrinter = false;     // what stands here is for the printer, not the plotter
    bool m_entersDrawing = false; // an escape somewhere says that a drawing begins
    long m_strayCharacters = 0;
    std::array<bool, 256> m_isAbsent{}; // characters that come nowhere in the rest
};

} // namespace torvik
