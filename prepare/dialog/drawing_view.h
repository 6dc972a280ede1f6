// SPDX-License-Identifier: MIT
// A view of a drawing, on white whatever the theme. The wheel zooms about the mouse, dragging and
// the arrow keys move, + and - zoom, 0 and a double click ask for the whole drawing. It shows an
// image that another thread paints, a little larger than the view, and moves and stretches it until
// the next one is there: so it follows the mouse with any drawing.
#pragma once

#include "forms/latest_work.h"
#include "prepare/dialog/stroke_picture.h"

#include <QFrame>
#include <QImage>

#include <memory>

namespace torvik {

class DrawingView : public QFrame {
    Q_OBJECT

public:
    explicit DrawingView(QWidget* parent = nullptr);

    // Null shows the hint instead.
    void setPicture(std::shared_ptr<const StrokePicture> picture);
    void setHint(const QString& hint);
    // Shows that place. Emits nothing.
    void setPlace(const ViewPlace& place);
    const ViewPlace& place() const { return m_place; }
    // Whether what is on show has been painted for the place on show.
    bool isPainted() const {
        return m_painted.picture == m_picture && m_painted.place == m_place &&
               m_painted.size == paintedSize();
    }

    QSize minimumSizeHint() const override { return {160, 140}; }
    QSize sizeHint() const override { return {420, 420}; }

signals:
    // The user has moved or zoomed.
    void placeChanged(const ViewPlace& place);
    // The user wants to see all.
    void fitWanted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Painted {
        QImage image;
        ViewPlace place;
        std::shared_ptr<const StrokePicture> picture;
        QSize size; // of the view that the image is for, with its margins
    };

    QSize paintedSize() const;
    void paintSoon();
    void moveTo(const ViewPlace& place);
    void moveBy(const QPointF& pixels);
    void zoomBy(double factor, const QPointF& about);
    void drawPainted(QPainter& painter) const;

    std::shared_ptr<const StrokePicture> m_picture;
    QString m_hint;
    ViewPlace m_place;
    Painted m_painted;
    QPointF m_grip; // where the mouse holds the drawing
    bool m_dragging = false;
    LatestWork m_work; // last: its thread ends before the rest goes
};

} // namespace torvik
