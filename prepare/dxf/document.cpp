// SPDX-License-Identifier: MIT
#include "prepare/dxf/document.h"

#include "base/errors.h"
#include "base/text.h"
#include "prepare/source/character_sets.h"

#include <algorithm>

namespace torvik::dxf {
namespace {

// Where the section that begins at `start` ends: at its mark, or where the groups do.
std::size_t endOfSection(std::span<const Group> groups, std::size_t start) {
    const auto end = std::find_if(
        groups.begin() + static_cast<std::ptrdiff_t>(start), groups.end(),
        [](const Group& group) { return group.code == kindCode && group.value == "ENDSEC"; });
    return static_cast<std::size_t>(end - groups.begin());
}

} // namespace

Document::Document(std::string_view bytes) : m_list(readGroups(bytes)) {
    const std::span<const Group> groups = m_list.groups;
    bool hasSection = false;
    for (std::size_t at = 0; at < groups.size(); ++at) {
        if (groups[at].code != kindCode || groups[at].value != "SECTION")
            continue;
        hasSection = true;
        const std::size_t end = endOfSection(groups, at + 1);
        if (at + 1 < end && groups[at + 1].code == nameCode)
            readSection(withoutBlanks(groups[at + 1].value), groups.subspan(at + 2, end - at - 2));
        at = end;
    }
    if (!hasSection)
        throw RunTimeError("this is no DXF drawing: it has no section");
}

void Document::readSection(std::string_view name, std::span<const Group> groups) {
    if (name == "HEADER")
        readHeader(groups);
    else if (name == "TABLES")
        readTables(groups);
    else if (name == "BLOCKS")
        readBlocks(groups);
    else if (name == "ENTITIES")
        m_entities = entitiesOf(groups);
}

void Document::readHeader(std::span<const Group> groups) {
    const auto unit = std::find_if(groups.begin(), groups.end(), [](const Group& group) {
        return group.code == variableCode && withoutBlanks(group.value) == "$INSUNITS";
    });
    if (unit != groups.end() && unit + 1 != groups.end())
        m_unit = Entity("$INSUNITS", {unit + 1, unit + 2}).integer(flagsCode);
}

void Document::readTables(std::span<const Group> groups) {
    constexpr int frozen = 1;
    for (const Entity& row : entitiesOf(groups)) {
        if (row.kind() != "LAYER")
            continue;
        Layer layer;
        const int colour = row.integer(colourCode, layer.colour);
        layer.colour = std::abs(colour);
        if (row.has(trueColourCode))
            layer.rgb = static_cast<std::uint32_t>(row.integer(trueColourCode));
        layer.lineType = row.name(lineTypeCode);
        layer.isShown = colour >= 0 && !row.flag(frozen);
        m_layers[lowered(row.name(nameCode))] = layer;
    }
}

void Document::readBlocks(std::span<const Group> groups) {
    constexpr int baseCode = 10;
    constexpr int elsewhere = 4;
    Block* block = nullptr;
    for (const Entity& entity : entitiesOf(groups)) {
        if (entity.kind() == "BLOCK") {
            const std::string_view name = entity.name(nameCode);
            block = &m_blocks[lowered(name)];
            *block = {name,
                      {entity.number(baseCode, 0), entity.number(baseCode + 10, 0)},
                      entity.flag(elsewhere),
                      {}};
        } else if (entity.kind() == "ENDBLK") {
            block = nullptr;
        } else if (block != nullptr) {
            block->entities.push_back(entity);
        }
    }
}

const Layer& Document::layer(std::string_view name) const {
    static const Layer usual;
    const auto found = m_layers.find(lowered(name));
    return found != m_layers.end() ? found->second : usual;
}

const Block* Document::findBlock(std::string_view name) const {
    const auto found = m_blocks.find(lowered(name));
    return found != m_blocks.end() ? &found->second : nullptr;
}

// Drawings of today are UTF-8; older ones have the set of their country, of which the western one
// is by far the most usual.
std::string utf8Of(std::string_view bytes) {
    const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    if (isUtf8Label(bytes) || std::all_of(bytes.begin(), bytes.end(), isAscii))
        return std::string(bytes);
    std::string text;
    for (const char c : bytes)
        appendLetter(text, letterOf(static_cast<unsigned char>(c), latin1Set));
    return text;
}

} // namespace torvik::dxf
