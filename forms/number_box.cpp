// SPDX-License-Identifier: MIT
#include "forms/number_box.h"

#include "forms/number_keys.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QToolTip>

namespace torvik {

NumberBox::NumberBox(bool minusAllowed, QWidget* parent)
    : QLineEdit(parent), m_minusAllowed(minusAllowed) {
    setInputMethodHints(Qt::ImhPreferNumbers);
    setAlignment(Qt::AlignRight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (const char32_t wrong = firstWrong(text))
            showHint(wrong);
    });
}

QSize NumberBox::sizeHint() const {
    constexpr int usualLetters = 17; // that a line edit makes room for
    const QFontMetrics metrics = fontMetrics();
    QSize size = QLineEdit::sizeHint();
    size.rwidth() +=
        8 * metrics.horizontalAdvance(u'0') - usualLetters * metrics.horizontalAdvance(u'x');
    return size;
}

void NumberBox::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    // Delete is a key like backspace, though its character is above the control characters.
    const char32_t wrong = text == QChar(0x7F) ? 0 : firstWrong(text);
    if (wrong == 0) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    const bool typed =
        (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != Qt::AltModifier &&
        !(event->modifiers() & Qt::MetaModifier);
    if (!typed) {
        event->ignore(); // an access key that nobody has
        return;
    }
    event->accept();
    showHint(wrong);
}

void NumberBox::inputMethodEvent(QInputMethodEvent* event) {
    const char32_t wrong = firstWrong(event->commitString());
    if (wrong == 0) {
        QLineEdit::inputMethodEvent(event);
        return;
    }
    QInputMethodEvent nothing;
    QLineEdit::inputMethodEvent(&nothing);
    showHint(wrong);
}

void NumberBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
        reason != Qt::MenuBarFocusReason)
        emit left();
}

char32_t NumberBox::firstWrong(const QString& text) const {
    for (const char32_t character : text.toUcs4())
        if (!isNumberCharacter(character, m_minusAllowed))
            return character;
    return 0;
}

void NumberBox::showHint(char32_t wrong) {
    QToolTip::showText(mapToGlobal(QPoint(0, height())),
                       QString::fromStdString(discardedHint(wrong, m_minusAllowed)), this);
}

} // namespace torvik
