// SPDX-License-Identifier: MIT
#include "prepare/svg/text_layout.h"

#include "prepare/text/text_line.h"

#include <algorithm>
#include <string>
#include <utility>

namespace torvik::svg {
namespace {

// A capital letter's height, in font sizes.
constexpr double capitals = 0.7;

// A run before it has its place: letters 1 high.
struct LooseRun {
    TextRun run;
    Point place;
    double size = 0; // of capitals
};

class Layout {
public:
    Layout(const TextLetters& text, const Affine& map) : m_text(text), m_map(map) {}

    std::vector<TextRun> make() {
        const auto& letters = m_text.letters;
        for (std::size_t i = 0; i < letters.size();) {
            std::size_t end = i + 1;
            while (end < letters.size() && goesOn(letters[end - 1], letters[end]))
                ++end;
            addRun(i, end);
            i = end;
        }
        endChunk();
        return std::move(m_runs);
    }

private:
    static bool goesOn(const Letter& before, const Letter& letter) {
        return letter.style == before.style && !letter.x && !letter.y && letter.dx == 0 &&
               letter.dy == 0;
    }

    void addRun(std::size_t first, std::size_t end) {
        const Letter& letter = m_text.letters[first];
        if (letter.x || letter.y || first == 0) {
            endChunk();
            m_pen = {letter.x.value_or(m_pen.x), letter.y.value_or(m_pen.y)};
            m_chunkStart = m_pen.x;
        }
        m_pen = m_pen + Point{letter.dx, letter.dy};
        std::string bytes;
        for (std::size_t i = first; i < end; ++i)
            bytes += m_text.letters[i].bytes;
        TextLine line = textLine(bytes);
        const double size = m_text.styles[letter.style].fontSize * capitals;
        m_chunk.push_back(
            {{letter.style, std::move(line.strokes), line.unknownLetters}, m_pen, size});
        m_pen.x += line.width * size;
    }

    // Letters from one given place to the next are aligned together.
    void endChunk() {
        double shift = 0;
        if (!m_chunk.empty()) {
            const TextAnchor anchor = m_text.styles[m_chunk.front().run.style].anchor;
            const double width = m_pen.x - m_chunkStart;
            shift = anchor == TextAnchor::middle ? -width / 2
                    : anchor == TextAnchor::end  ? -width
                                                 : 0;
        }
        for (LooseRun& loose : m_chunk) {
            const Affine map =
                m_map * moved(loose.place + Point{shift, 0}) * scaled(loose.size, -loose.size);
            for (Stroke& stroke : loose.run.strokes)
                stroke = mapped(stroke, map);
            m_runs.push_back(std::move(loose.run));
        }
        m_chunk.clear();
    }

    const TextLetters& m_text;
    Affine m_map;
    std::vector<TextRun> m_runs;
    std::vector<LooseRun> m_chunk;
    Point m_pen;
    double m_chunkStart = 0;
};

} // namespace

std::vector<TextRun> runsOf(const TextLetters& text, const Affine& map) {
    return Layout(text, map).make();
}

} // namespace torvik::svg
