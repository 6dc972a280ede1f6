// SPDX-License-Identifier: MIT
#include "prepare/dialog/pen_colour.h"

#include "forms/colour.h"
#include "job/job.h"
#include "job/pens.h"
#include "languages/shown_text.h"

#include <QComboBox>
#include <QPainter>

#include <array>
#include <string>

namespace torvik {
namespace {

struct PenLook {
    QColor colour;
    std::string name;
};

std::array<PenLook, penCount> makeLooks() {
    Job job;
    SetColourDefinitions(job);
    std::array<PenLook, penCount> looks;
    for (int pen = 1; pen <= penCount; ++pen) {
        looks[static_cast<std::size_t>(pen - 1)] = {colourOf(job.answers.gudtPens[pen].lngColour),
                                                    job.answers.gudtPens[pen].strColour};
    }
    return looks;
}

const PenLook* lookOf(int pen) {
    static const std::array<PenLook, penCount> looks = makeLooks();
    return pen < 1 || pen > penCount ? nullptr : &looks[static_cast<std::size_t>(pen - 1)];
}

} // namespace

QColor penColour(int pen) {
    const PenLook* const look = lookOf(pen);
    return look == nullptr ? QColor(0x90, 0x90, 0x90) : look->colour;
}

QString penName(int pen) {
    const PenLook* const look = lookOf(pen);
    return look == nullptr ? QString()
                           : QStringLiteral("%1 %2").arg(pen).arg(shownText(look->name));
}

void addPens(QComboBox& box) {
    for (int pen = 1; pen <= penCount; ++pen)
        box.addItem(QIcon(colourSwatch(penColour(pen))), penName(pen), pen);
}

QPixmap colourSwatch(const QColor& colour) {
    constexpr int side = 14;         // logical pixels
    constexpr qreal sharpness = 4.0; // drawn this much larger, for screens of any scale
    QPixmap pixmap(QSize(side, side) * sharpness);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.scale(sharpness, sharpness);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0x80, 0x80, 0x80), 1));
    painter.setBrush(colour);
    painter.drawRoundedRect(QRectF(0.5, 0.5, side - 1, side - 1), 2, 2);
    return pixmap;
}

} // namespace torvik
