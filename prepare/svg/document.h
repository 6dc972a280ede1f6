// SPDX-License-Identifier: MIT
// A picture's text as a tree of elements, with its style sheets and the elements that others name.
// Entities of its own are put in, those of other files are never fetched. Refuses what is no SVG
// picture, nesting that is too deep, and entities that swell.
#pragma once

#include "prepare/svg/css_sheet.h"

#include <pugixml.hpp>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace torvik::svg {

// Elements within one another, those that are used counted too.
inline constexpr int deepestNesting = 300;

class Document {
public:
    // Raises RunTimeError; it begins with "line N: " where a place is meant.
    explicit Document(std::string_view bytes);

    pugi::xml_node root() const { return m_root; }
    const StyleSheet& sheet() const { return m_sheet; }
    // An element by its id; nothing where there is none.
    pugi::xml_node find(std::string_view id) const;
    // Whose geometry is drawn or counted: shapes and texts.
    const std::vector<pugi::xml_node>& shapes() const { return m_shapes; }
    // The remark in which the writing program names itself; empty where there is none.
    const std::string& generator() const { return m_generator; }

private:
    void parse(std::string_view bytes);
    void look(pugi::xml_node node, std::string_view name);

    pugi::xml_document m_xml;
    pugi::xml_node m_root;
    StyleSheet m_sheet;
    std::unordered_map<std::string_view, pugi::xml_node> m_ids;
    std::vector<pugi::xml_node> m_shapes;
    std::string m_generator;
};

} // namespace torvik::svg
