// SPDX-License-Identifier: MIT
// One thing in a DXF drawing, from its kind up to the next one's: its values by their codes. What
// is missing or senseless among its numbers is no number, and so is all that is drawn with it.
#pragma once

#include "prepare/dxf/groups.h"
#include "prepare/strokes.h"

#include <optional>
#include <span>
#include <string>

namespace torvik::dxf {

// Codes that many kinds share.
inline constexpr int layerCode = 8;
inline constexpr int lineTypeCode = 6;
inline constexpr int colourCode = 62;
inline constexpr int trueColourCode = 420;
inline constexpr int flagsCode = 70;

class Entity {
public:
    Entity() = default;
    // The groups after the kind's own.
    Entity(std::string_view kind, std::span<const Group> groups) : m_kind(kind), m_groups(groups) {}

    std::string_view kind() const { return m_kind; }
    std::span<const Group> groups() const { return m_groups; }

    // In the drawing, in bytes.
    std::size_t size() const;
    bool has(int code) const { return find(code) != nullptr; }
    // Without the blanks round it; empty where there is none.
    std::string_view text(int code) const;
    // A text that names something, as far as CAD programs let names be long.
    std::string_view name(int code) const { return text(code).substr(0, longestName); }
    double number(int code) const;
    double number(int code, double otherwise) const;
    int integer(int code, int otherwise = 0) const;
    bool flag(int bit, int code = flagsCode) const { return (integer(code) & bit) != 0; }
    // X under the code, Y under the code 10 above, Z, which may be left out, 20 above.
    Point point(int xCode) const;
    double height(int xCode) const { return number(xCode + 20, 0); }

private:
    static constexpr std::size_t longestName = 255;

    const Group* find(int code) const;

    std::string_view m_kind;
    std::span<const Group> m_groups;
};

double numberOf(std::string_view value);

// The things in the groups, each with its own.
std::vector<Entity> entitiesOf(std::span<const Group> groups);

} // namespace torvik::dxf
