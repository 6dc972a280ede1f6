// SPDX-License-Identifier: MIT
// The picture of a piece with its legend, three buttons to zoom, and a line that says what lies
// under the pointer. Where it is narrow it has no legend.
#pragma once

#include "preview/cut/cut_canvas.h"

#include <QFrame>

class QLabel;

namespace torvik {

class CutPicture : public QFrame {
    Q_OBJECT

public:
    explicit CutPicture(QWidget* parent = nullptr);

    CutCanvas& canvas() { return *m_canvas; }
    QSize minimumSizeHint() const override { return m_canvas->minimumSizeHint(); }
    void setWork(std::shared_ptr<CutWork> work) { m_canvas->setWork(std::move(work)); }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QWidget* makeStrip();
    QWidget* makeZoomButtons();
    void showLegend();

    CutCanvas* m_canvas;
    QLabel* m_caption;
    Legend* m_legend;
    QWidget* m_strip = nullptr;
    QLabel* m_place;
};

} // namespace torvik
