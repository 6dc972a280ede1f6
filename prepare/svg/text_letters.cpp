// SPDX-License-Identifier: MIT
#include "prepare/svg/text_letters.h"

#include "prepare/svg/svg_names.h"
#include "prepare/svg/text_reader.h"

#include <algorithm>

namespace torvik::svg {
namespace {

constexpr std::string_view blank = " ";

std::size_t letterLength(std::string_view text) {
    std::size_t size = 1;
    while (size < text.size() && (static_cast<unsigned char>(text[size]) & 0xC0U) == 0x80U)
        ++size;
    return size;
}

class Collector {
public:
    Collector(const LengthRules& rules, const Document& document)
        : m_rules(rules), m_document(document) {}

    TextLetters collect(pugi::xml_node text, const Style& style) {
        addElement(text, style);
        auto& letters = m_result.letters;
        while (!letters.empty() && letters.back().bytes.data() == blank.data() &&
               !m_result.styles[letters.back().style].keepsBlanks)
            letters.pop_back();
        return std::move(m_result);
    }

private:
    void addElement(pugi::xml_node node, Style style) {
        const std::string_view space = node.attribute("xml:space").value();
        if (!space.empty())
            style.keepsBlanks = space == "preserve";
        const std::size_t first = m_result.letters.size();
        const std::size_t index = m_result.styles.size();
        m_result.styles.push_back(style);
        for (const pugi::xml_node child : node.children()) {
            const std::string_view name = svgName(child);
            if (child.type() == pugi::node_pcdata || child.type() == pugi::node_cdata)
                addText(child.value(), index);
            else if (name == "tspan" || name == "a")
                addPart(child, style);
            else if (name == "textPath" || name == "tref")
                ++m_result.undrawn;
        }
        place(node, style, first);
    }

    void addPart(pugi::xml_node node, const Style& around) {
        LengthRules rules = m_rules;
        rules.fontSize = around.fontSize;
        const Style style = styleWithin(around, cascade(node, m_document.sheet()), rules);
        if (style.isDisplayed)
            addElement(node, style);
    }

    void addText(std::string_view text, std::size_t style) {
        while (!text.empty()) {
            const std::size_t size = letterLength(text);
            if (!isBlank(text.front()))
                m_result.letters.push_back({text.substr(0, size), style, {}, {}, 0, 0});
            else if (m_result.styles[style].keepsBlanks || !endsWithBlank())
                m_result.letters.push_back({blank, style, {}, {}, 0, 0});
            text.remove_prefix(size);
        }
    }

    bool endsWithBlank() const {
        return m_result.letters.empty() || m_result.letters.back().bytes.data() == blank.data();
    }

    std::vector<double> lengths(pugi::xml_node node, const char* name, const Style& style,
                                Along along) const {
        LengthRules rules = m_rules;
        rules.fontSize = style.fontSize;
        std::vector<double> found;
        TextReader reader(node.attribute(name).value());
        reader.skipBlanks();
        while (!reader.atEnd()) {
            const std::string_view rest = reader.rest();
            const std::size_t end = std::min(rest.find_first_of(" ,\t\r\n\f"), rest.size());
            const auto length = lengthOf(rest.substr(0, end), rules, rules.whole(along));
            if (!length)
                break;
            found.push_back(*length);
            reader.skip(end);
            reader.skipSeparator();
        }
        return found;
    }

    // What an inner element has said of a letter stays.
    void place(pugi::xml_node node, const Style& style, std::size_t first) {
        const auto xs = lengths(node, "x", style, Along::width);
        const auto ys = lengths(node, "y", style, Along::height);
        const auto dxs = lengths(node, "dx", style, Along::width);
        const auto dys = lengths(node, "dy", style, Along::height);
        auto& letters = m_result.letters;
        for (std::size_t i = 0; first + i < letters.size(); ++i) {
            Letter& letter = letters[first + i];
            if (i < xs.size() && !letter.x)
                letter.x = xs[i];
            if (i < ys.size() && !letter.y)
                letter.y = ys[i];
            if (i < dxs.size() && letter.dx == 0)
                letter.dx = dxs[i];
            if (i < dys.size() && letter.dy == 0)
                letter.dy = dys[i];
            if (i >= std::max({xs.size(), ys.size(), dxs.size(), dys.size()}))
                break;
        }
    }

    const LengthRules& m_rules;
    const Document& m_document;
    TextLetters m_result;
};

} // namespace

TextLetters lettersOf(pugi::xml_node text, const Style& style, const LengthRules& rules,
                      const Document& document) {
    return Collector(rules, document).collect(text, style);
}

} // namespace torvik::svg
