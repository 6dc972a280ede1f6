// SPDX-License-Identifier: MIT
// A text box for a number. It discards the keys that its filter refuses and says so in a short hint
// beside the box. A comma becomes the decimal point, also in a pasted text that has no point yet;
// else pasted text stays as it is, with the same hint where a key would have been discarded. A
// double click selects all of the number.
#pragma once

#include "forms/key_filters.h"

#include <QLineEdit>

namespace torvik {

class NumberBox : public QLineEdit {
    Q_OBJECT

public:
    explicit NumberBox(KeyFilter filter, QWidget* parent = nullptr);

    // Room for eight digits.
    QSize sizeHint() const override;

signals:
    // The focus went to another control of the window; not: the window or a dialog took it.
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    // The hint for the first of the characters that the box would discard as it stands.
    KeyHint hintFor(const QString& characters) const;
    // What was pasted in place of a whole text or a part of it.
    void takePasted(QString all);
    void showHint(KeyHint hint);

    KeyFilter m_filter;
};

} // namespace torvik
