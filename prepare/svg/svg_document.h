// SPDX-License-Identifier: MIT
// The text of an SVG picture made ready for the renderer: its size in mm, lengths with units as
// plain user units, and without what is not carried over (texts, pictures, masks), which is
// counted.
#pragma once

#include "prepare/source/source_report.h"

#include <QByteArray>
#include <QRectF>
#include <QSizeF>

namespace torvik {

struct SvgDocument {
    QByteArray text;
    QSizeF sizeInMm; // empty where neither size nor view box say it
    QRectF viewBox;  // in user units; empty likewise
    bool keepsAspect = true;
};

// Raises RunTimeError with the line where the text is no SVG picture.
SvgDocument readSvgDocument(const QByteArray& bytes, SourceReport& report);

} // namespace torvik
