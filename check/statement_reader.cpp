// SPDX-License-Identifier: MIT
#include "check/statement_reader.h"

#include "base/picture.h"
#include "check/words.h"

#include <algorithm>

namespace torvik::check {
namespace {

// The form's next word, taken off its front.
std::string_view nextWord(std::string_view& pattern) {
    const auto end = std::min(pattern.find(' '), pattern.size());
    const std::string_view word = pattern.substr(0, end);
    pattern.remove_prefix(std::min(end + 1, pattern.size()));
    return word;
}

bool matches(std::string_view pattern, std::span<const Word> words) {
    for (const Word& word : words) {
        const std::string_view expected = nextWord(pattern);
        const bool isPlace = expected.ends_with('#');
        if (expected.empty() || word.letter != expected[0] || (!isPlace && word.text != expected))
            return false;
    }
    return pattern.empty() || (pattern == "F#" && !words.empty());
}

const StatementForm* formOf(const Target& target, std::span<const Word> words) {
    for (const auto& forms : {commonForms(), target.forms})
        for (const StatementForm& form : forms)
            if (matches(form.pattern, words))
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
    std::string_view pattern = form.pattern;
    for (const Word& word : words) {
        if (!nextWord(pattern).ends_with('#'))
            continue;
        const int decimals = decimalsOf(target, form, word.letter);
        const WrittenNumber number = readNumber(word.number, decimals);
        if (!number.isClean)
            findings.add(Kind::number, statement.line,
                         {shownText(word.text), formatFixed(12.5, decimals)});
        put(target, statement, word.letter, number.value);
    }
}

bool movesAnAxis(std::span<const Word> words) {
    return std::any_of(words.begin(), words.end(),
                       [](const Word& word) { return word.letter >= 'X' && word.letter <= 'Z'; });
}

} // namespace

Statement readStatement(const Target& target, std::string_view text, std::uint32_t line,
                        Findings& findings) {
    Statement statement;
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
