// SPDX-License-Identifier: MIT
#include "prepare/source/skipped.h"

#include "base/errors.h"
#include "base/numbers.h"
#include "base/text.h"
#include "prepare/source/characters.h"
#include "prepare/source/instruction_table.h"

#include <algorithm>

namespace torvik {
namespace {

enum class Reading { whole, harmless, harmful };

// To the reader a blank is a comma.
bool isComma(char c) {
    return c == ',' || c == ' ';
}

long commas(std::string_view parameters) {
    return static_cast<long>(std::count_if(parameters.begin(), parameters.end(), isComma));
}

// Whether another instruction follows without a semicolon. An E or D between digits belongs to a
// number.
bool holdsMnemonic(std::string_view parameters) {
    for (std::size_t i = 0; i + 1 < parameters.size(); ++i)
        if (isLetter(parameters[i]) && isLetter(parameters[i + 1]))
            return true;
    return false;
}

// A number that is too large makes the reader refuse the drawing, which is not told here.
bool putsPenAway(std::string_view parameters) {
    try {
        return leadingNumber(parameters) <= 0;
    } catch (const Overflow&) {
        return false;
    }
}

// PU and PD take one pair; without a comma they do nothing.
Reading readingOfMove(std::string_view parameters) {
    if (parameters.empty())
        return Reading::harmless;
    const bool isPair = commas(parameters) == 1 && !isComma(parameters[0]);
    return isPair ? Reading::whole : Reading::harmful;
}

Reading readingOfSkipped(std::string_view part) {
    while (!part.empty() && isSeparator(part[0]))
        part.remove_prefix(1);
    if (part.size() < 2 || !isLetter(part[0]) || !isLetter(part[1]))
        return Reading::harmless;
    const Instruction* const row = findInstruction({toCapital(part[0]), toCapital(part[1])});
    if (row == nullptr || row->effect == Effect::nothing)
        return Reading::harmless;
    // Without numbers, units go back to what the reader takes anyway, and a move goes nowhere; but
    // after a PR all moves are meant from the pen's place.
    const bool isBare = part.find_first_not_of(" ,\t", 2) == std::string_view::npos;
    const bool isRelative = row->perform == &PenPlotter::plotRelative;
    const bool isMove = !isRelative && row->parameters.find("]...") != std::string_view::npos;
    const bool isReset = row->effect == Effect::places;
    return isBare && (isMove || isReset) ? Reading::harmless : Reading::harmful;
}

// Follows the reader through the parts of one line after the other.
class SkipCounter {
public:
    void countLine(std::string_view line) {
        line = trimBlanks(line);
        while (!line.empty()) {
            const auto end = std::min(line.find(';'), line.size());
            countPart(line.substr(0, end));
            line.remove_prefix(std::min(end + 1, line.size()));
        }
    }

    SkippedInstructions result() const { return m_result; }

private:
    void countPart(std::string_view part) {
        if (part.find_first_not_of(" ,") == std::string_view::npos)
            return;
        const Reading reading = readingOf(part);
        if (reading == Reading::harmful)
            ++m_result.harmful;
        else if (reading == Reading::harmless)
            ++m_result.harmless;
    }

    Reading readingOf(std::string_view part) {
        const std::string_view mnemonic = part.substr(0, 2);
        const std::string_view parameters = part.substr(mnemonic.size());
        if (m_stopped)
            return readingAfterEnd(part);
        Reading reading = Reading::whole;
        if (mnemonic == "SP")
            m_stopped = putsPenAway(parameters);
        else if (mnemonic == "PU" || mnemonic == "PD")
            reading = readingOfMove(parameters);
        else if (mnemonic != "AA" && mnemonic != "CI")
            return readingOfSkipped(part);
        return holdsMnemonic(parameters) ? Reading::harmful : reading;
    }

    // After a pen is put away nothing is read; a last move is no loss.
    static Reading readingAfterEnd(std::string_view part) {
        const bool isLastMove = part.substr(0, 2) == "PU" || part.substr(0, 2) == "SP";
        return isLastMove ? Reading::harmless : readingOfSkipped(part);
    }

    SkippedInstructions m_result;
    bool m_stopped = false;
};

} // namespace

SkippedInstructions countSkipped(std::string_view bytes) {
    SkipCounter counter;
    while (!bytes.empty()) {
        const auto end = std::min(bytes.find_first_of("\r\n"), bytes.size());
        counter.countLine(bytes.substr(0, end));
        bytes.remove_prefix(std::min(end + 1, bytes.size()));
    }
    return counter.result();
}

} // namespace torvik
