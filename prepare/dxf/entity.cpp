// SPDX-License-Identifier: MIT
#include "prepare/dxf/entity.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace torvik::dxf {
namespace {

constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();
// What follows belongs to a thing inside this one, with codes of its own.
constexpr int innerCode = 101;

} // namespace

double numberOf(std::string_view value) {
    std::string_view digits = withoutBlanks(value);
    if (digits.starts_with('+'))
        digits.remove_prefix(1);
    double number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    const bool isRead = error == std::errc() && end == digits.data() + digits.size();
    return isRead && std::isfinite(number) ? number : noNumber;
}

const Group* Entity::find(int code) const {
    for (const Group& group : m_groups) {
        if (group.code == code)
            return &group;
        if (group.code == innerCode)
            break;
    }
    return nullptr;
}

std::size_t Entity::size() const {
    const std::string_view last = m_groups.empty() ? m_kind : m_groups.back().value;
    return static_cast<std::size_t>(last.data() + last.size() - m_kind.data());
}

std::string_view Entity::text(int code) const {
    const Group* const group = find(code);
    return group != nullptr ? withoutBlanks(group->value) : std::string_view();
}

double Entity::number(int code) const {
    return number(code, noNumber);
}

double Entity::number(int code, double otherwise) const {
    const Group* const group = find(code);
    return group != nullptr ? numberOf(group->value) : otherwise;
}

int Entity::integer(int code, int otherwise) const {
    const double value = number(code, otherwise);
    constexpr double most = 1e9;
    return std::fabs(value) <= most ? static_cast<int>(value) : otherwise;
}

Point Entity::point(int xCode) const {
    return {number(xCode), number(xCode + 10)};
}

std::vector<Entity> entitiesOf(std::span<const Group> groups) {
    std::vector<Entity> entities;
    const auto isKind = [](const Group& group) { return group.code == kindCode; };
    auto at = std::find_if(groups.begin(), groups.end(), isKind);
    while (at != groups.end()) {
        const auto next = std::find_if(at + 1, groups.end(), isKind);
        entities.emplace_back(at->value, std::span<const Group>(at + 1, next));
        at = next;
    }
    return entities;
}

} // namespace torvik::dxf
