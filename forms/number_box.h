// SPDX-License-Identifier: MIT
// A text box for a number. It discards the keys that its filter refuses and says so in a short hint
// at the box. Pasted text stays as it is (it is read leniently), with the same hint where a key
// would have been discarded.
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

private:
    // The hint for the first of the characters that the box would discard as it stands.
    KeyHint hintFor(const QString& characters) const;
    void showHint(KeyHint hint);

    KeyFilter m_filter;
};

} // namespace torvik
