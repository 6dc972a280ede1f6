// SPDX-License-Identifier: MIT
#include "prepare/svg/shape_tally.h"

#include "base/errors.h"
#include "prepare/svg/svg_names.h"

#include <array>

namespace torvik::svg {
namespace {

struct Holder {
    std::string_view name;
    std::string_view reason;
};

// Elements whose shapes wait for something that asks for them.
constexpr std::array<Holder, 6> holders{{{"defs", unusedShapes},
                                         {"symbol", unusedShapes},
                                         {"clipPath", helperShapes},
                                         {"mask", helperShapes},
                                         {"pattern", helperShapes},
                                         {"marker", helperShapes}}};

// Why a shape may not have been met at all; empty where it must have been.
std::string_view reasonToWait(pugi::xml_node shape) {
    for (pugi::xml_node node = shape.parent(); node; node = node.parent()) {
        const std::string_view name = svgName(node);
        for (const Holder& holder : holders)
            if (holder.name == name)
                return holder.reason;
    }
    return {};
}

} // namespace

void ShapeTally::see(pugi::xml_node shape) {
    m_seen.insert(shape.internal_object());
    ++m_read;
}

void ShapeTally::leave(std::string_view reason) {
    ++m_left;
    ++m_report.leftOut[std::string(reason)];
}

void ShapeTally::finish() {
    long lost = 0;
    for (const pugi::xml_node shape : m_document.shapes()) {
        if (m_seen.contains(shape.internal_object()))
            continue;
        const std::string_view reason = reasonToWait(shape);
        if (reason.empty()) {
            ++lost;
            continue;
        }
        ++m_read;
        leave(reason);
    }
    if (lost > 0 || m_read != m_drawn + m_left)
        throw RunTimeError("of " + std::to_string(m_read + lost) + " shapes only " +
                           std::to_string(m_drawn + m_left) +
                           " were drawn or counted (a fault of Torvik, please report it)");
}

} // namespace torvik::svg
