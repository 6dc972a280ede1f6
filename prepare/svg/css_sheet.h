// SPDX-License-Identifier: MIT
// The style sheets of a picture: which declarations are meant for an element, weaker ones first.
// Rules for certain devices (@media) and what cannot be understood are passed over and counted.
#pragma once

#include "prepare/svg/css_declarations.h"
#include "prepare/svg/css_selector.h"

#include <list>
#include <string>
#include <unordered_map>

namespace torvik::svg {

class StyleSheet {
public:
    // The text of a <style> element.
    void add(std::string_view text);

    // The blocks of declarations whose selectors match.
    std::vector<const std::vector<Declaration>*> declarationsFor(pugi::xml_node node) const;

    long passedOver() const { return m_passedOver; }

private:
    struct Rule {
        Selector selector;
        std::size_t block;
    };
    using Rules = std::vector<std::size_t>;

    void readRules(std::string_view text);
    void addRule(std::string_view selectors, std::string_view block);

    std::list<std::string> m_texts; // that selectors and declarations point into
    std::vector<Rule> m_rules;
    std::vector<std::vector<Declaration>> m_blocks;
    // Rules by what their last element must have, so that few are tried for each element.
    std::unordered_map<std::string_view, Rules> m_byId;
    std::unordered_map<std::string_view, Rules> m_byClass;
    std::unordered_map<std::string_view, Rules> m_byType;
    Rules m_others;
    long m_passedOver = 0;
};

} // namespace torvik::svg
