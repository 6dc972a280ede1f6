// SPDX-License-Identifier: MIT
#include "prepare/svg/walker.h"

#include "base/errors.h"
#include "prepare/svg/conditions.h"
#include "prepare/svg/shapes.h"
#include "prepare/svg/svg_names.h"
#include "prepare/svg/text_reader.h"
#include "prepare/svg/transform_list.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace torvik::svg {

void Walker::draw(const Affine& map, const LengthRules& rules) {
    const Scope around{map, {}, rules};
    const Scope scope = enter(m_document.root(), around);
    if (scope.style.isDisplayed)
        drawChildren(m_document.root(), {map, scope.style, scope.rules});
    else
        leaveAll(m_document.root(), hiddenShapes);
    m_tally.finish();
    if (m_document.sheet().passedOver() > 0)
        m_report.leftOut["rules of style sheets that are not understood"] +=
            m_document.sheet().passedOver();
}

Walker::Draw Walker::drawerOf(std::string_view name) {
    struct Row {
        std::string_view name;
        Draw draw;
    };
    static constexpr std::array<Row, 11> rows{{{"g", &Walker::drawChildren},
                                               {"a", &Walker::drawChildren},
                                               {"svg", &Walker::drawNested},
                                               {"switch", &Walker::drawSwitch},
                                               {"use", &Walker::drawUse},
                                               {"text", &Walker::drawText},
                                               {"image", &Walker::drawPicture},
                                               {"foreignObject", &Walker::drawPicture},
                                               {"video", &Walker::drawPicture},
                                               {"flowRoot", &Walker::drawFlow},
                                               {"textArea", &Walker::drawFlow}}};
    const auto* const row =
        std::find_if(rows.begin(), rows.end(), [&](const Row& one) { return one.name == name; });
    if (row != rows.end())
        return row->draw;
    return findShape(name) != nullptr ? &Walker::drawShape : nullptr;
}

// Shapes that stand within such an element are no part of the picture.
bool Walker::drawsNoChildren(Draw drawer) {
    return drawer == &Walker::drawShape || drawer == &Walker::drawText ||
           drawer == &Walker::drawUse;
}

void Walker::walk(pugi::xml_node node, const Scope& around) {
    if (node.type() != pugi::node_element)
        return;
    const std::string_view name = svgName(node);
    if (name == "defs" || name == "symbol")
        return;
    const Draw drawer = drawerOf(name);
    if (drawer == nullptr) {
        leaveAll(node, isShapeHolder(name) ? helperShapes : foreignShapes);
        return;
    }
    countVisit();
    const Scope scope = enter(node, around);
    if (!scope.style.isDisplayed) {
        leaveAll(node, hiddenShapes);
        return;
    }
    if (++m_depth > deepestNesting)
        throw RunTimeError("the picture's elements use one another more than " +
                           std::to_string(deepestNesting) + " deep");
    (this->*drawer)(node, scope);
    if (drawsNoChildren(drawer))
        leaveChildren(node, misplacedShapes);
    --m_depth;
}

Scope Walker::enter(pugi::xml_node node, const Scope& around) {
    Scope scope = around;
    scope.style = styleWithin(around.style, cascade(node, m_document.sheet()), around.rules);
    scope.rules.fontSize = scope.style.fontSize;
    if (!scope.style.transform.empty()) {
        const auto map = transformOf(scope.style.transform);
        if (!map)
            m_report.lose(Loss::malformed);
        scope.map = around.map * map.value_or(Affine{});
    }
    if (!scope.style.isDisplayed)
        return scope;
    if (scope.style.isClipped)
        m_report.lose(Loss::clipping);
    m_report.lose(Loss::effects, scope.style.effects);
    return scope;
}

void Walker::countVisit() {
    constexpr long mostVisits = 500'000;
    if (!m_used.empty() && ++m_visits > mostVisits)
        throw RunTimeError("the picture draws the same elements more than " +
                           std::to_string(mostVisits) + " times");
}

void Walker::leaveAll(pugi::xml_node node, std::string_view reason) {
    countVisit();
    const std::string_view name = svgName(node);
    if (findShape(name) != nullptr || name == "text") {
        m_tally.see(node);
        m_tally.leave(reason);
    }
    leaveChildren(node, reason);
}

void Walker::leaveChildren(pugi::xml_node node, std::string_view reason) {
    for (const pugi::xml_node child : node.children())
        if (child.type() == pugi::node_element)
            leaveAll(child, reason);
}

void Walker::drawChildren(pugi::xml_node node, const Scope& scope) {
    for (const pugi::xml_node child : node.children())
        walk(child, scope);
}

void Walker::drawNested(pugi::xml_node node, const Scope& scope) {
    const auto size = [&](const char* name, Along along) {
        const double whole = scope.rules.whole(along);
        return lengthOf(node.attribute(name).value(), scope.rules, whole).value_or(whole);
    };
    drawViewport(node,
                 {lengthAttribute(node, "x", scope.rules, Along::width),
                  lengthAttribute(node, "y", scope.rules, Along::height),
                  size("width", Along::width), size("height", Along::height)},
                 scope);
}

// The content of an <svg> or a used <symbol>.
void Walker::drawViewport(pugi::xml_node node, const Rectangle& viewport, const Scope& scope) {
    if (!(viewport.width > 0 && viewport.height > 0)) {
        leaveAll(node, emptyShapes);
        return;
    }
    Scope inner = scope;
    inner.rules.width = viewport.width;
    inner.rules.height = viewport.height;
    if (const auto box = viewBoxOf(node.attribute("viewBox").value())) {
        inner.map =
            scope.map * viewBoxMap(*box, viewport, node.attribute("preserveAspectRatio").value());
        inner.rules.width = box->width;
        inner.rules.height = box->height;
    } else {
        inner.map = scope.map * moved({viewport.x, viewport.y});
    }
    const std::size_t before = m_sink.count();
    drawChildren(node, inner);
    if (!scope.style.overflows && reachesOut(m_sink.extentsSince(before), viewport, scope.map))
        m_report.lose(Loss::clipping);
}

void Walker::drawSwitch(pugi::xml_node node, const Scope& scope) {
    bool isChosen = false;
    for (const pugi::xml_node child : node.children()) {
        if (child.type() != pugi::node_element)
            continue;
        const std::string_view name = svgName(child);
        const bool canDraw = name != "foreignObject" && drawerOf(name) != nullptr;
        if (!isChosen && canDraw && meetsConditions(child)) {
            isChosen = true;
            walk(child, scope);
        } else {
            leaveAll(child, unchosenShapes);
        }
    }
}

void Walker::drawUse(pugi::xml_node node, const Scope& scope) {
    ++m_report.instructions["use"];
    const pugi::xml_node target = m_document.find(referenceOf(node));
    if (!target) {
        ++m_report.leftOut[std::string(missingShapes)];
        return;
    }
    if (std::find(m_used.begin(), m_used.end(), target) != m_used.end())
        throw RunTimeError("the element \"" + std::string(target.attribute("id").value()) +
                           "\" uses itself");
    m_used.push_back(target);
    Scope inner = scope;
    inner.map = scope.map * moved({lengthAttribute(node, "x", scope.rules, Along::width),
                                   lengthAttribute(node, "y", scope.rules, Along::height)});
    drawUsed(node, target, inner);
    m_used.pop_back();
}

void Walker::drawUsed(pugi::xml_node node, pugi::xml_node target, const Scope& scope) {
    const std::string_view name = svgName(target);
    if (name != "symbol" && name != "svg") {
        walk(target, scope);
        return;
    }
    countVisit();
    const Scope inner = enter(target, scope);
    if (!inner.style.isDisplayed) {
        leaveAll(target, hiddenShapes);
        return;
    }
    const auto size = [&](const char* side, Along along) {
        const double whole = scope.rules.whole(along);
        const char* const text =
            node.attribute(side) ? node.attribute(side).value() : target.attribute(side).value();
        return lengthOf(text, scope.rules, whole).value_or(whole);
    };
    drawViewport(target,
                 {lengthAttribute(target, "x", scope.rules, Along::width),
                  lengthAttribute(target, "y", scope.rules, Along::height),
                  size("width", Along::width), size("height", Along::height)},
                 inner);
}

} // namespace torvik::svg
