// SPDX-License-Identifier: MIT
// The place of the start page that says that a drawing can be dropped. All of the window takes it.
#pragma once

#include <QLabel>

namespace torvik {

class DropPlace : public QLabel {
    Q_OBJECT

public:
    DropPlace();

    // While a drawing is dragged over the window.
    void showDrag(bool isOver);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_isOver = false;
};

} // namespace torvik
