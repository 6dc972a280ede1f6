// SPDX-License-Identifier: MIT
#include "prepare/svg/css_declarations.h"

#include "prepare/svg/text_reader.h"

namespace torvik::svg {
namespace {

std::string_view withoutLeadingComments(std::string_view text) {
    text = trimmed(text);
    while (text.starts_with("/*")) {
        const std::size_t end = text.find("*/", 2);
        if (end == std::string_view::npos)
            return {};
        text = trimmed(text.substr(end + 2));
    }
    return text;
}

std::string_view withoutComments(std::string_view text) {
    text = withoutLeadingComments(text);
    return trimmed(text.substr(0, text.find("/*")));
}

} // namespace

std::vector<Declaration> declarationsOf(std::string_view text) {
    std::vector<Declaration> declarations;
    TextReader reader(text);
    while (!reader.atEnd()) {
        const std::string_view one = withoutLeadingComments(reader.takeUntil(';'));
        const std::size_t colon = one.find(':');
        if (colon == std::string_view::npos)
            continue;
        Declaration declaration{withoutComments(one.substr(0, colon)),
                                withoutComments(one.substr(colon + 1))};
        const std::size_t mark = declaration.value.rfind('!');
        if (mark != std::string_view::npos &&
            isWord(trimmed(declaration.value.substr(mark + 1)), "important")) {
            declaration.isImportant = true;
            declaration.value = trimmed(declaration.value.substr(0, mark));
        }
        declarations.push_back(declaration);
    }
    return declarations;
}

} // namespace torvik::svg
