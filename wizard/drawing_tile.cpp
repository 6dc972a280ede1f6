// SPDX-License-Identifier: MIT
#include "wizard/drawing_tile.h"

#include <QFileInfo>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace torvik {
namespace {

constexpr int usualName = 14;   // letters
constexpr int shortestName = 6; // letters
constexpr int margin = 8;       // pixels round the picture

} // namespace

DrawingTile::DrawingTile(const QString& drawing, const QImage& picture)
    : QPushButton(QFileInfo(drawing).fileName().replace('&', "&&")),
      m_name(QFileInfo(drawing).fileName()), m_picture(QPixmap::fromImage(picture)) {
    setAccessibleName(tr("Open %1").arg(m_name));
    setToolTip(drawing);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize DrawingTile::sizeFor(int letters) const {
    return {pictureSize.width() + 3 * margin + letters * fontMetrics().averageCharWidth(),
            pictureSize.height() + 2 * margin};
}

QSize DrawingTile::sizeHint() const {
    return sizeFor(usualName);
}

QSize DrawingTile::minimumSizeHint() const {
    return sizeFor(shortestName);
}

void DrawingTile::paintEvent(QPaintEvent*) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButton, option);

    const QRect picture(QPoint(margin, (height() - pictureSize.height()) / 2), pictureSize);
    painter.drawPixmap(picture, m_picture);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(picture.adjusted(0, 0, -1, -1));

    const QRect place = rect().adjusted(picture.right() + margin, 0, -margin, 0);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(m_name, Qt::ElideMiddle, place.width()));
}

} // namespace torvik
