// SPDX-License-Identifier: MIT
#include "prepare/text/hershey_font.h"

#include "base/errors.h"
#include "rowmans.h" // written by the build, from the font's file

#include <charconv>
#include <string>

namespace torvik {
namespace {

constexpr char zero = 'R';         // the letter that stands for 0
constexpr double baseline = 9;     // where it lies below the letters' middle
constexpr std::size_t countAt = 5; // of the number of pairs in a record
constexpr std::size_t pairsAt = 8; // of the first pair

[[noreturn]] void refuse() {
    throw RunTimeError("the font is damaged");
}

Point pointOf(std::string_view pair) {
    return {static_cast<double>(pair[0] - zero), baseline - (pair[1] - zero)};
}

Glyph glyphOf(std::string_view pairs) {
    Glyph glyph;
    glyph.left = pairs[0] - zero;
    glyph.right = pairs[1] - zero;
    bool isUp = true;
    for (std::size_t i = 2; i + 1 < pairs.size(); i += 2) {
        const std::string_view pair = pairs.substr(i, 2);
        if (pair == " R") {
            isUp = true;
            continue;
        }
        if (isUp)
            glyph.lines.emplace_back();
        isUp = false;
        glyph.lines.back().push_back(pointOf(pair));
    }
    return glyph;
}

// One record: five columns of number, three of the count of pairs, the pairs. A long one goes on in
// the next line.
std::string takeRecord(std::string_view& text) {
    std::string record;
    std::size_t wanted = pairsAt;
    while (record.size() < wanted) {
        const std::size_t end = text.find('\n');
        if (end == std::string_view::npos)
            refuse();
        record += text.substr(0, end);
        text.remove_prefix(end + 1);
        if (record.size() < pairsAt)
            refuse();
        const std::string_view count = std::string_view(record).substr(countAt, pairsAt - countAt);
        const std::size_t digits = count.find_first_not_of(' ');
        std::size_t pairs = 0;
        if (digits == std::string_view::npos ||
            std::from_chars(count.data() + digits, count.data() + count.size(), pairs).ec !=
                std::errc() ||
            pairs == 0)
            refuse();
        wanted = pairsAt + 2 * pairs;
    }
    return record.substr(pairsAt, wanted - pairsAt);
}

} // namespace

std::vector<Glyph> readHersheyFont(std::string_view text) {
    std::vector<Glyph> glyphs;
    while (!text.empty())
        glyphs.push_back(glyphOf(takeRecord(text)));
    return glyphs;
}

const std::vector<Glyph>& hersheyFont() {
    static const std::vector<Glyph> font = readHersheyFont(hersheySimplex);
    return font;
}

} // namespace torvik
