// SPDX-License-Identifier: MIT
// The drawing before and after its preparation, side by side, both always seen at the same place.
#pragma once

#include "prepare/dialog/drawing_view.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace torvik {

class BeforeAfter : public QWidget {
public:
    explicit BeforeAfter(QWidget* parent = nullptr);

    // Null leaves a view empty, under the hint. Drawings of another size or place are fitted.
    void setPictures(std::shared_ptr<const StrokePicture> before,
                     std::shared_ptr<const StrokePicture> after);
    void setHints(const QString& before, const QString& after);
    // Shows all of both.
    void fit();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectViews();

    DrawingView* m_before;
    DrawingView* m_after;
    QLabel* m_beforeCount;
    QLabel* m_afterCount;
    QLabel* m_beforeSize;
    QLabel* m_afterSize;
    QLabel* m_legend;
    QPushButton* m_fit;
    QRectF m_bounds; // mm, of both
    bool m_fitted = true;
};

} // namespace torvik
