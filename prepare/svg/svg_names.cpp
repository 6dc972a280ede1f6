// SPDX-License-Identifier: MIT
#include "prepare/svg/svg_names.h"

#include "prepare/svg/text_reader.h"

#include <string>

namespace torvik::svg {
namespace {

constexpr std::string_view language = "http://www.w3.org/2000/svg";

// What the prefix stands for at the node.
std::string_view namespaceOf(pugi::xml_node node, std::string_view prefix) {
    const std::string name = "xmlns:" + std::string(prefix);
    for (; node; node = node.parent())
        if (const pugi::xml_attribute found = node.attribute(name.c_str()))
            return found.value();
    return {};
}

std::string_view within(std::string_view text) {
    text = trimmed(text);
    return !text.empty() && text.front() == '#' ? text.substr(1) : std::string_view{};
}

} // namespace

std::string_view svgName(pugi::xml_node node) {
    if (node.type() != pugi::node_element)
        return {};
    const std::string_view name = node.name();
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos)
        return name;
    return namespaceOf(node, name.substr(0, colon)) == language ? name.substr(colon + 1)
                                                                : std::string_view{};
}

std::string_view referenceOf(pugi::xml_node node) {
    constexpr std::string_view href = "href";
    for (const pugi::xml_attribute attribute : node.attributes()) {
        const std::string_view name = attribute.name();
        if (name == href || (name.size() > href.size() && name.ends_with(":href")))
            return within(attribute.value());
    }
    return {};
}

std::string_view urlReference(std::string_view text) {
    std::string_view rest;
    return urlReference(text, rest);
}

std::string_view urlReference(std::string_view text, std::string_view& rest) {
    TextReader reader(trimmed(text));
    if (!isWord(reader.takeLetters(), "url") || !reader.take('('))
        return {};
    std::string_view address = trimmed(reader.takeUntil(')'));
    rest = reader.rest();
    if (address.size() > 1 && (address.front() == '"' || address.front() == '\''))
        address = address.substr(1, address.size() - 2);
    return within(address);
}

} // namespace torvik::svg
