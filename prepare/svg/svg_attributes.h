// SPDX-License-Identifier: MIT
// Attributes of SVG shapes: which are lengths, and the outline of a rectangle with round corners.
#pragma once

#include <QSizeF>
#include <QString>
#include <QXmlStreamAttributes>

namespace torvik {

// The value of an attribute, empty where it is missing.
QStringView valueOf(const QXmlStreamAttributes& attributes, QStringView name);

// Whether the attribute of a shape is a length or a coordinate.
bool isSvgLength(QStringView name);

// What a length in hundredths is a part of, in a view box of this size.
double wholeOfLength(QStringView name, const QSizeF& viewBox);

// A number as an attribute's value.
QString svgNumber(double value);

// The path of a rectangle with round corners; empty where its corners are sharp.
QString roundedRectPath(const QXmlStreamAttributes& attributes, const QSizeF& viewBox);

} // namespace torvik
