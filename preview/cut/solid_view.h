// SPDX-License-Identifier: MIT
// The piece as a solid, turned by dragging or by the arrow keys, zoomed by the wheel or by the keys
// + and -, as at first by 0. Coarser while it turns, smooth when it stands.
#pragma once

#include "preview/cut/cut_work.h"
#include "preview/cut/solid_painter.h"

#include <QImage>
#include <QWidget>

#include <memory>

class QTimer;

namespace torvik {

class SolidView : public QWidget {
    Q_OBJECT

public:
    explicit SolidView(QWidget* parent = nullptr);

    void setWork(std::shared_ptr<CutWork> work); // nullptr: nothing is shown
    void showMoment(bool moment);                // or the piece as it is at the end
    void momentChanged();

    QSize sizeHint() const override { return {560, 420}; }
    QSize minimumSizeHint() const override { return {200, 160}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    bool isReady() const { return m_work && m_work->state() == CutWork::State::ready; }
    void cameraChanged();
    void smoothen();
    void paintImage(double ratio);

    std::shared_ptr<CutWork> m_work;
    bool m_showsMoment = false;
    SolidCells m_cells;
    SolidCamera m_camera;
    QImage m_image;
    QTimer* m_rest;          // runs out when nothing has moved for a while
    bool m_hasCells = false; // of what is shown now
    bool m_isPainted = false;
    QPointF m_last;
};

} // namespace torvik
