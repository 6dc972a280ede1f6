// SPDX-License-Identifier: MIT
#include "prepare/svg/entities.h"

#include "base/errors.h"
#include "prepare/svg/text_reader.h"

#include <map>
#include <utility>

namespace torvik::svg {
namespace {

using Entities = std::map<std::string_view, std::string_view>;

// The inside of the square brackets of <!DOCTYPE svg ... [ ]>, empty where there are none.
std::string_view declarationsIn(std::string_view text) {
    const std::size_t start = text.find("<!DOCTYPE");
    const std::size_t element = text.find("<svg");
    if (start == std::string_view::npos || start > element)
        return {};
    const std::size_t open = text.find_first_of("[>", start);
    if (open == std::string_view::npos || text[open] == '>')
        return {};
    return text.substr(open + 1, text.find(']', open) - open - 1);
}

Entities entitiesOf(std::string_view declarations) {
    constexpr std::string_view mark = "<!ENTITY";
    Entities entities;
    for (std::size_t at = declarations.find(mark); at != std::string_view::npos;
         at = declarations.find(mark, at)) {
        at += mark.size();
        TextReader reader(declarations.substr(at));
        reader.skipBlanks();
        const std::string_view name = reader.takeName();
        reader.skipBlanks();
        const char quote = reader.peek();
        if (name.empty() || (quote != '"' && quote != '\''))
            continue; // of another file
        reader.skip(1);
        const std::string_view rest = reader.rest();
        const std::size_t end = rest.find(quote);
        if (end != std::string_view::npos)
            entities.emplace(name, rest.substr(0, end));
    }
    return entities;
}

class Expander {
public:
    explicit Expander(const Entities& entities) : m_entities(entities) {}

    void add(std::string_view text, int depth = 0) {
        constexpr int deepest = 16;
        if (depth > deepest)
            throw RunTimeError("the picture's entities hold one another without end");
        while (!text.empty()) {
            const std::size_t at = text.find('&');
            put(text.substr(0, at), depth);
            if (at == std::string_view::npos)
                return;
            TextReader reader(text.substr(at + 1));
            const std::string_view name = reader.takeName();
            const auto entity = m_entities.find(name);
            if (reader.take(';') && entity != m_entities.end()) {
                add(entity->second, depth + 1);
                text = reader.rest();
            } else {
                put("&", depth);
                text.remove_prefix(at + 1);
            }
        }
    }

    std::string take() { return std::exchange(m_text, {}); }

private:
    void put(std::string_view text, int depth) {
        constexpr std::size_t mostInserted = 10'000'000;
        constexpr std::size_t mostPieces = 1'000'000;
        m_inserted += depth > 0 ? text.size() : 0;
        if (m_inserted > mostInserted || ++m_pieces > 2 * mostPieces + m_text.size())
            throw RunTimeError("the picture's entities make it larger than ten million characters");
        m_text += text;
    }

    const Entities& m_entities;
    std::string m_text;
    std::size_t m_inserted = 0;
    std::size_t m_pieces = 0;
};

} // namespace

std::string withEntities(std::string_view text) {
    const std::string_view declarations = declarationsIn(text);
    const Entities entities = entitiesOf(declarations);
    if (entities.empty())
        return {};
    // What declares them stays as it is.
    const auto end =
        static_cast<std::size_t>(declarations.data() - text.data()) + declarations.size();
    Expander expander(entities);
    expander.add(text.substr(end));
    return std::string(text.substr(0, end)) + expander.take();
}

} // namespace torvik::svg
