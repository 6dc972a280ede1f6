// SPDX-License-Identifier: MIT
// A text box for a number. It discards characters that no number has and says so in a short hint
// at the box. Pasted text stays as it is (it is read leniently), with the same hint where it holds
// such characters.
#pragma once

#include <QLineEdit>

namespace torvik {

class NumberBox : public QLineEdit {
    Q_OBJECT

public:
    explicit NumberBox(bool minusAllowed, QWidget* parent = nullptr);

    // Room for eight digits.
    QSize sizeHint() const override;

signals:
    // The focus went to another control of the window; not: the window or a dialog took it.
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    // The first character that the box does not take, 0 where there is none.
    char32_t firstWrong(const QString& text) const;
    void showHint(char32_t wrong);

    bool m_minusAllowed;
};

} // namespace torvik
