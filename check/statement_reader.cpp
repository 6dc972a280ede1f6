// SPDX-License-Identifier: MIT
#include "check/statement_reader.h"

#include "base/picture.h"
#include "check/words.h"

#include <algorithm>
#include <cmath>

namespace torvik::check {
namespace {

bool isPlace(std::string_view expected) {
    return expected.back() == '#';
}

// Whether the words are those of the form; a feed may be missing.
bool matches(const StatementForm& form, std::span<const Word> words) {
    const auto expected = form.words();
    if (words.size() > expected.size())
        return false;
    for (std::size_t i = 0; i < words.size(); ++i)
        if (isPlace(expected[i]) ? words[i].letter() != expected[i][0]
                                 : words[i].text != expected[i])
            return false;
    const auto missing = expected.subspan(words.size());
    return missing.empty() || (missing.size() == 1 && missing[0] == "F#");
}

const StatementForm* formOf(const Target& target, std::span<const Word> words) {
    for (const auto& forms : {commonForms(), target.forms})
        for (const StatementForm& form : forms)
            if (matches(form, words))
                return &form;
    return nullptr;
}

int decimalsOf(const Target& target, const StatementForm& form, char letter) {
    if (form.meaning == Meaning::dwell)
        return target.dwellDecimals;
    switch (letter) {
    case 'X':
    case 'Y':
    case 'I':
    case 'J':
        return 3;
    case 'Z':
        return 2;
    case 'F':
        return target.feedDecimals;
    default:
        return 0;
    }
}

void put(const Target& target, Statement& statement, char letter, double number) {
    if (statement.meaning == Meaning::dwell)
        statement.value = number * target.dwellFactor;
    else if (letter == 'X')
        statement.x = number;
    else if (letter == 'Y')
        statement.y = number;
    else if (letter == 'Z')
        statement.z = number;
    else if (letter == 'I')
        statement.i = number;
    else if (letter == 'J')
        statement.j = number;
    else if (letter == 'F')
        statement.feed = number * target.feedFactor;
    else if (letter == target.offsetLetter)
        statement.offset = number;
    else
        statement.value = number;
}

void readNumbers(const Target& target, const StatementForm& form, std::span<const Word> words,
                 Statement& statement, Findings& findings) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (!isPlace(form.words()[i]))
            continue;
        const Word& word = words[i];
        const int decimals = decimalsOf(target, form, word.letter());
        const WrittenNumber number = readNumber(word.number(), decimals);
        if (!number.isClean)
            findings.add(Kind::number, statement.line,
                         {shownText(word.text), formatFixed(12.5, decimals)});
        put(target, statement, word.letter(), number.value);
    }
}

// Takes the letters off the text's front. They are so few that a call would take longer.
bool take(std::string_view& text, std::string_view letters) {
    if (text.size() < letters.size())
        return false;
    for (std::size_t i = 0; i < letters.size(); ++i)
        if (text[i] != letters[i])
            return false;
    text.remove_prefix(letters.size());
    return true;
}

// Reads a statement that is written just as the form says, as nearly all are; false for any other.
bool readsAs(const StatementForm& form, const Target& target, std::string_view text,
             Statement& statement) {
    bool isFirst = true;
    for (const std::string_view expected : form.words()) {
        const bool holdsNumber = isPlace(expected);
        if ((!isFirst && !take(text, " ")) ||
            !take(text, expected.substr(0, expected.size() - (holdsNumber ? 1 : 0))))
            return false;
        if (isFirst) {
            statement = {};
            statement.meaning = form.meaning;
            isFirst = false;
        }
        if (!holdsNumber)
            continue;
        const double number = takeCleanNumber(text, decimalsOf(target, form, expected[0]));
        if (std::isnan(number))
            return false;
        put(target, statement, expected[0], number);
    }
    return text.empty();
}

bool movesAnAxis(std::span<const Word> words) {
    return std::any_of(words.begin(), words.end(), [](const Word& word) {
        return word.letter() >= 'X' && word.letter() <= 'Z';
    });
}

} // namespace

Statement readStatement(const Target& target, std::string_view text, std::uint32_t line,
                        Findings& findings) {
    Statement statement;
    for (const auto& forms : {commonForms(), target.forms})
        for (const StatementForm& form : forms)
            if (readsAs(form, target, text, statement)) {
                statement.line = line;
                return statement;
            }
    statement = {};
    statement.line = line;
    const Words read(text);
    const auto words = read.words();
    const StatementForm* const form = words.empty() ? nullptr : formOf(target, words);
    if (form == nullptr || !read.isClean())
        findings.add(Kind::statement, line, {shownText(text), std::string(target.name)});
    if (form == nullptr) {
        statement.meaning = movesAnAxis(words) ? Meaning::unknownMove : Meaning::unknown;
        return statement;
    }
    statement.meaning = form->meaning;
    readNumbers(target, *form, words, statement, findings);
    return statement;
}

} // namespace torvik::check
