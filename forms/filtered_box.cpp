// SPDX-License-Identifier: MIT
#include "forms/filtered_box.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QToolTip>

namespace torvik {

FilteredBox::FilteredBox(Filter filter, QWidget* parent) : QLineEdit(parent), m_filter(filter) {
    setInputMethodHints(Qt::ImhPreferNumbers);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& all) {
        for (const char32_t character : all.toUcs4()) {
            const std::string hint = m_filter(character, {});
            if (!hint.empty()) {
                showHint(QString::fromStdString(hint));
                return;
            }
        }
    });
}

QString FilteredBox::hintFor(const QString& characters) const {
    const std::string all = text().toStdString();
    const BoxState state{all, text().left(cursorPosition()).toStdString().size(),
                         hasSelectedText()};
    for (const char32_t character : characters.toUcs4()) {
        const std::string hint = m_filter(character, state);
        if (!hint.empty())
            return QString::fromStdString(hint);
    }
    return {};
}

void FilteredBox::keyPressEvent(QKeyEvent* event) {
    const QString hint = hintFor(event->text());
    // With Control or Alt alone a key is a command; with both it writes a third character.
    const auto command = event->modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    const bool types = command != Qt::AltModifier && command != Qt::ControlModifier &&
                       !(event->modifiers() & Qt::MetaModifier);
    if (hint.isEmpty() || !types) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    event->accept();
    showHint(hint);
}

void FilteredBox::inputMethodEvent(QInputMethodEvent* event) {
    const QString hint = hintFor(event->commitString());
    if (hint.isEmpty()) {
        QLineEdit::inputMethodEvent(event);
        return;
    }
    QInputMethodEvent nothing;
    QLineEdit::inputMethodEvent(&nothing);
    showHint(hint);
}

void FilteredBox::showHint(const QString& hint) {
    QToolTip::showText(mapToGlobal(QPoint(0, height())), hint, this);
}

} // namespace torvik
