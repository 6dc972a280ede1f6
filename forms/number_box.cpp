// SPDX-License-Identifier: MIT
#include "forms/number_box.h"

#include "forms/side_hint.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace torvik {
namespace {

QString hintText(KeyHint hint) {
    switch (hint) {
    case KeyHint::none:
        break;
    case KeyHint::digitsOnly:
        return NumberBox::tr("Digits only");
    case KeyHint::digitsAndPoint:
        return NumberBox::tr("Only digits and the point");
    case KeyHint::digitsPointAndMinus:
        return NumberBox::tr("Only digits, the point and the minus sign");
    case KeyHint::pointThere:
        return NumberBox::tr("There is a point already");
    case KeyHint::threeDecimals:
        return NumberBox::tr("Three digits after the point at most");
    }
    return {};
}

} // namespace

NumberBox::NumberBox(KeyFilter filter, QWidget* parent) : QLineEdit(parent), m_filter(filter) {
    setInputMethodHints(Qt::ImhPreferNumbers);
    setAlignment(Qt::AlignRight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QLineEdit::textEdited, this, &NumberBox::takePasted);
}

void NumberBox::takePasted(QString all) {
    if (all.count(u',') == 1 && !all.contains(u'.') && m_filter(U',', {}) == KeyHint::none) {
        const int cursor = cursorPosition();
        setText(all.replace(u',', u'.'));
        setCursorPosition(cursor);
    }
    for (const char32_t character : all.toUcs4()) {
        KeyHint hint = m_filter(character, {});
        if (character == U',' && hint == KeyHint::none)
            hint = KeyHint::pointThere;
        if (hint != KeyHint::none) {
            showHint(hint);
            return;
        }
    }
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
    const KeyHint hint = hintFor(event->text());
    // With Control or Alt alone a key is a command; with both it writes a third character.
    const auto command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    if (hint == KeyHint::none && event->text() == u',') {
        QKeyEvent point(event->type(), Qt::Key_Period, event->modifiers(), QStringLiteral("."));
        QLineEdit::keyPressEvent(&point);
        return;
    }
    if (hint == KeyHint::none || command == Qt::ControlModifier) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    if (command == Qt::AltModifier || (event->modifiers() & Qt::MetaModifier)) {
        event->ignore(); // an access key that nobody has
        return;
    }
    event->accept();
    showHint(hint);
}

void NumberBox::inputMethodEvent(QInputMethodEvent* event) {
    const KeyHint hint = hintFor(event->commitString());
    if (hint == KeyHint::none) {
        QInputMethodEvent withPoint(event->preeditString(), event->attributes());
        withPoint.setCommitString(QString(event->commitString()).replace(u',', u'.'),
                                  event->replacementStart(), event->replacementLength());
        QLineEdit::inputMethodEvent(&withPoint);
        return;
    }
    QInputMethodEvent nothing;
    QLineEdit::inputMethodEvent(&nothing);
    showHint(hint);
}

void NumberBox::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
        reason != Qt::MenuBarFocusReason)
        emit left();
}

void NumberBox::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
    selectAll();
}

KeyHint NumberBox::hintFor(const QString& characters) const {
    QString rest = text();
    if (hasSelectedText())
        rest.remove(selectionStart(), selectionLength());
    const std::string kept = rest.toStdString();
    const BoxState state{kept, text().left(cursorPosition()).toStdString().size(),
                         hasSelectedText()};
    for (const char32_t character : characters.toUcs4()) {
        const KeyHint hint = m_filter(character, state);
        if (hint != KeyHint::none)
            return hint;
    }
    return KeyHint::none;
}

void NumberBox::showHint(KeyHint hint) {
    SideHint::showBeside(*this, hintText(hint));
}

} // namespace torvik
