// SPDX-License-Identifier: MIT
#include "prepare/svg/document.h"

#include "base/errors.h"
#include "prepare/svg/entities.h"
#include "prepare/svg/shapes.h"
#include "prepare/svg/svg_names.h"

#include <algorithm>

namespace torvik::svg {
namespace {

// The remark stands before the picture's first element.
std::string generatorOf(std::string_view bytes) {
    constexpr std::string_view mark = "<!-- Generator:";
    bytes = bytes.substr(0, bytes.find("<svg"));
    const std::size_t at = bytes.find(mark);
    if (at == std::string_view::npos)
        return {};
    const std::string_view remark = bytes.substr(at + mark.size());
    return std::string(remark.substr(0, remark.find("-->")));
}

[[noreturn]] void refuse(std::string_view text, const pugi::xml_parse_result& result) {
    const auto place = static_cast<std::size_t>(std::max<std::ptrdiff_t>(result.offset, 0));
    const std::string_view before = text.substr(0, place);
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    throw RunTimeError("line " + std::to_string(line) + ": this is no well-formed picture (" +
                       result.description() + ")");
}

// All text within a <style> element.
std::string textOf(pugi::xml_node node) {
    std::string text;
    for (const pugi::xml_node child : node.children())
        text += child.value();
    return text;
}

} // namespace

Document::Document(std::string_view bytes) : m_generator(generatorOf(bytes)) {
    parse(bytes);
    int depth = 0;
    for (pugi::xml_node node = m_root; node;) {
        look(node, svgName(node));
        if (node.first_child()) {
            node = node.first_child();
            if (++depth > deepestNesting)
                throw RunTimeError("the picture's groups are nested more than " +
                                   std::to_string(deepestNesting) + " deep");
            continue;
        }
        while (node != m_root && !node.next_sibling()) {
            node = node.parent();
            --depth;
        }
        node = node == m_root ? pugi::xml_node() : node.next_sibling();
    }
}

void Document::parse(std::string_view bytes) {
    constexpr unsigned how = pugi::parse_default | pugi::parse_ws_pcdata;
    const std::string text = withEntities(bytes);
    const std::string_view parsed = text.empty() ? bytes : std::string_view(text);
    const pugi::xml_parse_result result = m_xml.load_buffer(parsed.data(), parsed.size(), how);
    if (!result)
        refuse(parsed, result);
    m_root = m_xml.document_element();
    const std::string_view name = m_root.name();
    if (name != "svg" && !name.ends_with(":svg"))
        throw RunTimeError("this is no SVG picture");
}

void Document::look(pugi::xml_node node, std::string_view name) {
    if (name.empty())
        return;
    if (const std::string_view id = node.attribute("id").value(); !id.empty())
        m_ids.emplace(id, node);
    if (name == "style")
        m_sheet.add(textOf(node));
    else if (findShape(name) != nullptr || name == "text")
        m_shapes.push_back(node);
}

pugi::xml_node Document::find(std::string_view id) const {
    const auto found = m_ids.find(id);
    return found == m_ids.end() ? pugi::xml_node() : found->second;
}

} // namespace torvik::svg
