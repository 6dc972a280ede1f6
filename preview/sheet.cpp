// SPDX-License-Identifier: MIT
#include "preview/sheet.h"

#include <QImage>
#include <QPainter>

namespace torvik {

Sheet::Sheet(ImageSource image, QWidget* parent) : QWidget(parent), m_image(std::move(image)) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void Sheet::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    const QImage& image = m_image();
    if (image.isNull())
        return;
    const QPoint origin = dynamic_cast<Sheet*>(parentWidget()) ? -pos() : QPoint();
    // At 125 or 150 % a widget can begin within a pixel of the screen; the image must not.
    const QPointF corner = painter.deviceTransform().map(QPointF(origin));
    const double ratio = devicePixelRatioF();
    painter.setTransform(QTransform::fromScale(1 / ratio, 1 / ratio));
    const QTransform toImage = painter.deviceTransform().inverted();
    painter.drawImage(toImage.map(QPointF(corner.toPoint())), image);
}

} // namespace torvik
