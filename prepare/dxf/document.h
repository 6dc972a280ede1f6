// SPDX-License-Identifier: MIT
// A DXF drawing taken apart: its unit, its layers, its blocks and what is drawn on the model's
// side. Names are the same in capital and small letters.
#pragma once

#include "prepare/dxf/entity.h"

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace torvik::dxf {

struct Layer {
    int colour = 7;
    std::optional<std::uint32_t> rgb; // where it is more exact than the number
    std::string_view lineType;
    bool isShown = true; // neither off nor frozen
};

struct Block {
    std::string_view name;
    Point base;
    bool isElsewhere = false; // in a file of its own
    std::vector<Entity> entities;
};

class Document {
public:
    // The bytes must outlive the document. Raises RunTimeError for what is no DXF drawing of text.
    explicit Document(std::string_view bytes);

    // As $INSUNITS has it; 0 where none is named.
    int unit() const { return m_unit; }
    bool isWhole() const { return m_list.isWhole; }
    // A layer that no table names is shown and white.
    const Layer& layer(std::string_view name) const;
    const Block* findBlock(std::string_view name) const;
    const std::vector<Entity>& entities() const { return m_entities; }

private:
    void readSection(std::string_view name, std::span<const Group> groups);
    void readHeader(std::span<const Group> groups);
    void readTables(std::span<const Group> groups);
    void readBlocks(std::span<const Group> groups);

    GroupList m_list;
    int m_unit = 0;
    std::map<std::string, Layer, std::less<>> m_layers;
    std::map<std::string, Block, std::less<>> m_blocks;
    std::vector<Entity> m_entities;
};

// A text of a drawing in UTF-8, whatever its bytes are.
std::string utf8Of(std::string_view bytes);

} // namespace torvik::dxf
