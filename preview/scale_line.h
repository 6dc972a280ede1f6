// SPDX-License-Identifier: MIT
// A line below the drawing: how large it is, and a bar as long as the length that stands beside it.
#pragma once

#include <QWidget>

namespace torvik {

class ScaleLine : public QWidget {
    Q_OBJECT

public:
    explicit ScaleLine(QWidget* parent);

    // The drawing's width and height in mm, and how many pixels a millimetre takes.
    void showScale(double width, double height, double pixelsPerMm);
    // Shows nothing; the line keeps its room.
    void clear();

    // The bar, mm and pixels; both are 0 where the window is too narrow for it.
    double barLength() const { return m_barLength; }
    int barPixels() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // The longest bar for which there is room beside the size.
    void fitBar();
    QString barText() const;
    void paintSize(QPainter& painter, const QRect& line) const;

    QString m_size;
    double m_pixelsPerMm = 0;
    double m_barLength = 0;
};

} // namespace torvik
