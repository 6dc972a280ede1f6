// SPDX-License-Identifier: MIT
// Selectors of style sheets: types, "*", classes, ids and attributes, after one another by a blank
// (anywhere within) or ">" (directly within). Others are refused.
#pragma once

#include <cstdint>
#include <optional>
#include <pugixml.hpp>
#include <string_view>
#include <vector>

namespace torvik::svg {

struct AttributeTest {
    std::string_view name;
    std::optional<std::string_view> value;
};

// What one element must be.
struct ElementTest {
    std::string_view type; // empty for any
    std::string_view id;
    std::vector<std::string_view> classes;
    std::vector<AttributeTest> attributes;
    bool isChild = false; // directly within the element before it

    bool matches(pugi::xml_node node) const;
};

struct Selector {
    std::vector<ElementTest> tests;
    std::uint32_t specificity = 0;

    bool matches(pugi::xml_node node) const;
};

// Points into the text. None where a part cannot be understood.
std::optional<Selector> selectorOf(std::string_view text);

// Whether an attribute that lists words by blanks holds the word.
bool hasWord(std::string_view list, std::string_view word);

} // namespace torvik::svg
