// SPDX-License-Identifier: MIT
#include "prepare/text/text_line.h"

#include "base/text.h"
#include "prepare/text/letters.h"
#include "prepare/text/smooth_line.h"

#include <algorithm>

namespace torvik {
namespace {

constexpr double unit = 1 / fontCapHeight;
constexpr double longChord = 8 * unit;

// What a letter may take of a fixed width, so that its neighbours stay clear of it.
constexpr double widest = 1.2;

double inkWidth(const Glyph& glyph) {
    double low = 0;
    double high = 0;
    for (const auto& line : glyph.lines)
        for (const Point& point : line) {
            low = std::min(low, point.x);
            high = std::max(high, point.x);
        }
    return (high - low) * unit;
}

class Composer {
public:
    explicit Composer(const TextForm& form) : m_form(form) {}

    void add(char32_t letter) {
        const Glyph* glyph = findLetter(letter);
        if (glyph == nullptr) {
            glyph = &emptyBox();
            ++m_line.unknownLetters;
        }
        ++m_line.letters;
        if (m_form.fixed) {
            const double narrowed = std::min(1.0, widest * m_form.fixed->letter / inkWidth(*glyph));
            const double middle = (glyph->left + glyph->right) / 2 * unit * narrowed;
            draw(*glyph, narrowed, m_line.width + m_form.fixed->letter / 2 - middle);
        } else {
            draw(*glyph, 1, m_line.width - glyph->left * unit);
        }
        m_line.width += m_form.fixed ? m_form.fixed->step : (glyph->right - glyph->left) * unit;
        m_line.width += m_form.spacing;
    }

    TextLine take() { return std::move(m_line); }

private:
    void draw(const Glyph& glyph, double narrowed, double x) {
        for (const auto& line : glyph.lines) {
            std::vector<Point> points;
            points.reserve(line.size());
            for (const Point& point : line)
                points.push_back({point.x * unit * narrowed + x, point.y * unit});
            m_line.strokes.push_back(smoothLine(points, longChord));
        }
    }

    const TextForm& m_form;
    TextLine m_line;
};

} // namespace

TextLine textLine(std::string_view utf8, const TextForm& form) {
    Composer composer(form);
    while (!utf8.empty())
        if (const char32_t letter = takeLetter(utf8); !isControlLetter(letter))
            composer.add(letter);
    return composer.take();
}

} // namespace torvik
