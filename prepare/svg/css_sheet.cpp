// SPDX-License-Identifier: MIT
#include "prepare/svg/css_sheet.h"

#include "prepare/svg/svg_names.h"
#include "prepare/svg/text_reader.h"

#include <algorithm>
#include <utility>

namespace torvik::svg {
namespace {

// The text without comments and the marks that hide a sheet from old programs.
std::string plainSheet(std::string_view text) {
    std::string plain;
    while (!text.empty()) {
        const std::size_t start = text.find("/*");
        plain += text.substr(0, start);
        const std::size_t end =
            start == std::string_view::npos ? start : text.find("*/", start + 2);
        text = end == std::string_view::npos ? std::string_view{} : text.substr(end + 2);
        plain += ' ';
    }
    for (const std::string_view mark : {"<!--", "-->"})
        for (std::size_t at = plain.find(mark); at != std::string::npos; at = plain.find(mark, at))
            plain.replace(at, mark.size(), mark.size(), ' ');
    return plain;
}

// The block of a rule, whose "{" is passed over already; blocks within belong to it.
std::string_view takeBlock(TextReader& reader) {
    const std::string_view text = reader.rest();
    int depth = 1;
    std::size_t at = 0;
    for (; at < text.size() && depth > 0; ++at)
        depth += text[at] == '{' ? 1 : text[at] == '}' ? -1 : 0;
    reader.skip(at);
    return text.substr(0, depth == 0 ? at - 1 : at);
}

} // namespace

void StyleSheet::add(std::string_view text) {
    m_texts.push_back(plainSheet(text));
    readRules(m_texts.back());
}

void StyleSheet::readRules(std::string_view text) {
    TextReader reader(text);
    for (reader.skipBlanks(); !reader.atEnd(); reader.skipBlanks()) {
        const std::string_view rest = reader.rest();
        const std::size_t end = rest.find_first_of("{;");
        if (rest.front() == '@' && (end == std::string_view::npos || rest[end] == ';')) {
            m_passedOver += rest.starts_with("@import") ? 1 : 0;
            reader.skip(end == std::string_view::npos ? rest.size() : end + 1);
            continue;
        }
        const std::string_view head = trimmed(reader.takeUntil('{'));
        const std::string_view block = takeBlock(reader);
        if (head.starts_with("@media"))
            ++m_passedOver;
        else if (!head.starts_with('@'))
            addRule(head, block);
    }
}

void StyleSheet::addRule(std::string_view selectors, std::string_view block) {
    m_blocks.push_back(declarationsOf(block));
    TextReader reader(selectors);
    while (!reader.atEnd()) {
        auto selector = selectorOf(reader.takeUntil(','));
        if (!selector) {
            ++m_passedOver;
            continue;
        }
        const ElementTest& last = selector->tests.back();
        Rules& rules = !last.id.empty()        ? m_byId[last.id]
                       : !last.classes.empty() ? m_byClass[last.classes.front()]
                       : !last.type.empty()    ? m_byType[last.type]
                                               : m_others;
        rules.push_back(m_rules.size());
        m_rules.push_back({std::move(*selector), m_blocks.size() - 1});
    }
}

std::vector<const std::vector<Declaration>*>
StyleSheet::declarationsFor(pugi::xml_node node) const {
    std::vector<const std::vector<Declaration>*> blocks;
    if (m_rules.empty())
        return blocks;
    Rules found;
    const auto look = [&](const auto& rules, std::string_view key) {
        if (const auto at = rules.find(key); at != rules.end())
            found.insert(found.end(), at->second.begin(), at->second.end());
    };
    found = m_others;
    look(m_byType, svgName(node));
    look(m_byId, node.attribute("id").value());
    TextReader classes(node.attribute("class").value());
    for (classes.skipBlanks(); !classes.atEnd(); classes.skipBlanks()) {
        const std::string_view rest = classes.rest();
        const std::size_t end = std::min(rest.find_first_of(" \t\r\n\f"), rest.size());
        look(m_byClass, rest.substr(0, end));
        classes.skip(end);
    }
    std::erase_if(found, [&](std::size_t rule) { return !m_rules[rule].selector.matches(node); });
    std::sort(found.begin(), found.end(), [&](std::size_t a, std::size_t b) {
        return std::pair(m_rules[a].selector.specificity, a) <
               std::pair(m_rules[b].selector.specificity, b);
    });
    for (const std::size_t rule : found)
        blocks.push_back(&m_blocks[m_rules[rule].block]);
    return blocks;
}

} // namespace torvik::svg
