// SPDX-License-Identifier: MIT
#include "prepare/dxf/splines.h"

#include "prepare/dxf/curve_through.h"
#include "prepare/dxf/weighted_curve.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace torvik::dxf {
namespace {

constexpr int controlCode = 10;
constexpr int throughCode = 11;
constexpr int startDirectionCode = 12;
constexpr int endDirectionCode = 13;
constexpr int knotCode = 40;
constexpr int weightCode = 41;
constexpr int degreeCode = 71;
constexpr int closed = 1;

struct Values {
    std::vector<Point> controls;
    std::vector<Point> through;
    std::vector<double> knots;
    std::vector<double> weights;
    bool isLevel = true;
};

class Collector {
public:
    Values collect(const Entity& entity) {
        for (const Group& group : entity.groups())
            take(group);
        return std::move(m_values);
    }

private:
    void take(const Group& group) {
        const double number = numberOf(group.value);
        switch (group.code) {
        case controlCode:
            m_values.controls.push_back({number, numberOf({})});
            break;
        case controlCode + 10:
            setY(m_values.controls, number);
            break;
        case throughCode:
            m_values.through.push_back({number, numberOf({})});
            break;
        case throughCode + 10:
            setY(m_values.through, number);
            break;
        case controlCode + 20:
        case throughCode + 20:
            m_values.isLevel = m_values.isLevel && number == m_level.value_or(number);
            m_level = number;
            break;
        case knotCode:
            m_values.knots.push_back(number);
            break;
        case weightCode:
            m_values.weights.push_back(number);
            break;
        default:
            break;
        }
    }

    static void setY(std::vector<Point>& points, double y) {
        if (!points.empty())
            points.back().y = y;
    }

    Values m_values;
    std::optional<double> m_level;
};

std::vector<double> usualKnots(std::size_t controls, std::size_t degree) {
    std::vector<double> knots(controls + degree + 1, 0);
    for (std::size_t i = degree + 1; i < knots.size(); ++i)
        knots[i] = static_cast<double>(std::min(i, controls) - degree);
    return knots;
}

std::optional<Point> direction(const Entity& entity, int code) {
    return entity.has(code) ? std::optional(entity.point(code)) : std::nullopt;
}

} // namespace

Drawn splineOf(const Entity& entity) {
    Values values = Collector().collect(entity);
    if (!values.isLevel)
        return {{}, false};
    if (values.controls.empty())
        return {{curveThrough(values.through, entity.flag(closed),
                              direction(entity, startDirectionCode),
                              direction(entity, endDirectionCode))}};
    const int degree = entity.integer(degreeCode);
    WeightedCurve curve{static_cast<std::size_t>(std::max(degree, 0)), std::move(values.knots), {}};
    curve.controls.reserve(values.controls.size());
    for (std::size_t i = 0; i < values.controls.size(); ++i)
        curve.controls.push_back(
            {values.controls[i], i < values.weights.size() ? values.weights[i] : 1});
    if (curve.knots.empty())
        curve.knots = usualKnots(curve.controls.size(), curve.degree);
    return {{strokeOf(curve)}};
}

} // namespace torvik::dxf
