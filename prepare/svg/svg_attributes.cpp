// SPDX-License-Identifier: MIT
#include "prepare/svg/svg_attributes.h"

#include "prepare/svg/svg_lengths.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace torvik {
namespace {

enum class Along { width, height, diagonal };

struct Length {
    QStringView name;
    Along along;
};

constexpr std::array<Length, 13> lengths{{{u"x", Along::width},
                                          {u"y", Along::height},
                                          {u"width", Along::width},
                                          {u"height", Along::height},
                                          {u"cx", Along::width},
                                          {u"cy", Along::height},
                                          {u"r", Along::diagonal},
                                          {u"rx", Along::width},
                                          {u"ry", Along::height},
                                          {u"x1", Along::width},
                                          {u"y1", Along::height},
                                          {u"x2", Along::width},
                                          {u"y2", Along::height}}};

const Length* findLength(QStringView name) {
    const auto* const found = std::find_if(lengths.begin(), lengths.end(),
                                           [&](const Length& one) { return one.name == name; });
    return found == lengths.end() ? nullptr : found;
}

} // namespace

QStringView valueOf(const QXmlStreamAttributes& attributes, QStringView name) {
    for (const QXmlStreamAttribute& attribute : attributes)
        if (attribute.qualifiedName() == name)
            return attribute.value();
    return {};
}

bool isSvgLength(QStringView name) {
    return findLength(name) != nullptr;
}

double wholeOfLength(QStringView name, const QSizeF& viewBox) {
    const Length* const length = findLength(name);
    if (length == nullptr)
        return 0;
    switch (length->along) {
    case Along::width:
        return viewBox.width();
    case Along::height:
        return viewBox.height();
    case Along::diagonal:
        break;
    }
    return std::hypot(viewBox.width(), viewBox.height()) / std::sqrt(2.0);
}

QString svgNumber(double value) {
    return QString::number(value, 'g', 15);
}

QString roundedRectPath(const QXmlStreamAttributes& attributes, const QSizeF& viewBox) {
    const auto length = [&](QStringView name) {
        return svgLength(valueOf(attributes, name), wholeOfLength(name, viewBox));
    };
    const double width = length(u"width").value_or(0);
    const double height = length(u"height").value_or(0);
    const auto rx = length(u"rx");
    const auto ry = length(u"ry");
    const double radiusX = std::min(rx.value_or(ry.value_or(0)), width / 2);
    const double radiusY = std::min(ry.value_or(rx.value_or(0)), height / 2);
    if (!(radiusX > 0 && radiusY > 0))
        return {};
    const double left = length(u"x").value_or(0);
    const double top = length(u"y").value_or(0);
    const double right = left + width;
    const double bottom = top + height;
    const auto corner = [&](double x, double y) {
        return QStringLiteral("A%1 %2 0 0 1 %3 %4 ")
            .arg(svgNumber(radiusX), svgNumber(radiusY), svgNumber(x), svgNumber(y));
    };
    return QStringLiteral("M%1 %2 H%3 ")
               .arg(svgNumber(left + radiusX), svgNumber(top), svgNumber(right - radiusX)) +
           corner(right, top + radiusY) + u'V' + svgNumber(bottom - radiusY) +
           corner(right - radiusX, bottom) + u'H' + svgNumber(left + radiusX) +
           corner(left, bottom - radiusY) + u'V' + svgNumber(top + radiusY) +
           corner(left + radiusX, top) + u'Z';
}

} // namespace torvik
