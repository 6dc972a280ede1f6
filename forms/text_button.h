// SPDX-License-Identifier: MIT
// A button that looks like a text: wrapped, as high as its lines, and pressed by a click, Space or
// Enter.
#pragma once

#include <QPushButton>

class QLabel;

namespace torvik {

class TextButton : public QPushButton {
    Q_OBJECT

public:
    // The label is what it shows. `plain` is the same text without any form.
    TextButton(QLabel* label, const QString& plain);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace torvik
