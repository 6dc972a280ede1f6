// SPDX-License-Identifier: MIT
#include "prepare/svg/css_selector.h"

#include "prepare/svg/svg_names.h"
#include "prepare/svg/text_reader.h"

#include <algorithm>
#include <string>

namespace torvik::svg {
namespace {

constexpr std::uint32_t idWeight = 1U << 20U;
constexpr std::uint32_t classWeight = 1U << 10U;

std::optional<AttributeTest> takeAttribute(TextReader& reader) {
    std::string_view inside = trimmed(reader.takeUntil(']'));
    const std::size_t equals = inside.find('=');
    if (equals == std::string_view::npos)
        return AttributeTest{inside, {}};
    const std::string_view name = trimmed(inside.substr(0, equals));
    std::string_view value = trimmed(inside.substr(equals + 1));
    if (value.size() > 1 && (value.front() == '"' || value.front() == '\''))
        value = value.substr(1, value.size() - 2);
    TextReader nameReader(name);
    if (nameReader.takeName() != name)
        return {}; // "~=" and its like
    return AttributeTest{name, value};
}

// One element's test with its weight; none where it cannot be understood.
std::optional<ElementTest> takeElement(TextReader& reader, std::uint32_t& specificity) {
    ElementTest test;
    bool isEmpty = true;
    if (reader.take('*')) {
        isEmpty = false;
    } else if (const std::string_view type = reader.takeName(); !type.empty()) {
        test.type = type;
        specificity += 1;
        isEmpty = false;
    }
    for (;; isEmpty = false) {
        if (reader.take('#')) {
            test.id = reader.takeName();
            specificity += idWeight;
            if (test.id.empty())
                return {};
        } else if (reader.take('.')) {
            test.classes.push_back(reader.takeName());
            specificity += classWeight;
            if (test.classes.back().empty())
                return {};
        } else if (reader.take('[')) {
            const auto attribute = takeAttribute(reader);
            if (!attribute)
                return {};
            test.attributes.push_back(*attribute);
            specificity += classWeight;
        } else {
            break;
        }
    }
    return isEmpty ? std::nullopt : std::optional(test);
}

bool hasAttribute(pugi::xml_node node, const AttributeTest& test) {
    const pugi::xml_attribute attribute = node.attribute(std::string(test.name).c_str());
    return attribute && (!test.value || *test.value == attribute.value());
}

} // namespace

bool hasWord(std::string_view list, std::string_view word) {
    for (std::size_t at = list.find(word); at != std::string_view::npos;
         at = list.find(word, at + 1)) {
        const std::size_t end = at + word.size();
        if ((at == 0 || isBlank(list[at - 1])) && (end == list.size() || isBlank(list[end])))
            return true;
    }
    return false;
}

bool ElementTest::matches(pugi::xml_node node) const {
    if (!type.empty() && type != svgName(node))
        return false;
    if (!id.empty() && id != node.attribute("id").value())
        return false;
    const std::string_view list = node.attribute("class").value();
    return std::all_of(classes.begin(), classes.end(),
                       [&](std::string_view one) { return hasWord(list, one); }) &&
           std::all_of(attributes.begin(), attributes.end(),
                       [&](const AttributeTest& one) { return hasAttribute(node, one); });
}

// From the outermost element inwards it is kept which tests can be passed up to here, so that no
// selector takes longer than its length times the nesting.
bool Selector::matches(pugi::xml_node node) const {
    if (!tests.back().matches(node))
        return false;
    if (tests.size() == 1)
        return true;
    std::vector<pugi::xml_node> line;
    for (pugi::xml_node one = node; one.type() == pugi::node_element; one = one.parent())
        line.push_back(one);
    std::reverse(line.begin(), line.end());
    std::vector<bool> isPassed(tests.size(), false);  // by the element before
    std::vector<bool> wasPassed(tests.size(), false); // by any before
    for (const pugi::xml_node& one : line) {
        std::vector<bool> passes(tests.size(), false);
        for (std::size_t i = 0; i < tests.size(); ++i) {
            const bool mayPass = i == 0 || (tests[i].isChild ? isPassed[i - 1] : wasPassed[i - 1]);
            passes[i] = mayPass && tests[i].matches(one);
        }
        for (std::size_t i = 0; i < tests.size(); ++i)
            wasPassed[i] = wasPassed[i] || passes[i];
        isPassed = std::move(passes);
    }
    return isPassed.back();
}

std::optional<Selector> selectorOf(std::string_view text) {
    Selector selector;
    TextReader reader(trimmed(text));
    bool isChild = false;
    while (!reader.atEnd()) {
        auto test = takeElement(reader, selector.specificity);
        if (!test)
            return {};
        test->isChild = isChild;
        selector.tests.push_back(*test);
        reader.skipBlanks();
        isChild = reader.take('>');
        reader.skipBlanks();
    }
    if (selector.tests.empty() || isChild)
        return {};
    return selector;
}

} // namespace torvik::svg
