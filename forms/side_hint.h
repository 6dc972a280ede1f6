// SPDX-License-Identifier: MIT
// A short hint about what was typed into a box, in a small window of its own. It stands beside the
// box or above it, on no other control, and lets every click through. It goes after a while, and
// with the focus of its box.
#pragma once

#include <QLabel>

namespace torvik {

class SideHint : public QLabel {
    Q_OBJECT

public:
    static constexpr int showTime = 8000; // ms

    // Shows the text beside the box in place of the hint that it had.
    static void showBeside(QWidget& box, const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit SideHint(QWidget& box);

    // Where it stands on the screen.
    QPoint place() const;
    // The nearest place to the right of the box and of the unit that stands there.
    QRect rightOf(const QRect& box) const;
    bool isFree(const QRect& area) const;

    QWidget& m_box;
    QTimer* m_time;
};

} // namespace torvik
