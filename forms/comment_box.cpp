// SPDX-License-Identifier: MIT
#include "forms/comment_box.h"

#include "forms/side_hint.h"

#include <QCoreApplication>
#include <QLineEdit>

#include <algorithm>

namespace torvik {

void keepCommentWhole(QLineEdit& box) {
    QObject::connect(&box, &QLineEdit::textEdited, &box, [&box] { mendComment(box); });
}

void mendComment(QLineEdit& box) {
    QString text = box.text();
    const bool hasBrackets = text.contains(u'(') || text.contains(u')');
    text.replace(u'(', u'[').replace(u')', u']');
    std::replace_if(
        text.begin(), text.end(),
        [](QChar c) { return c.category() == QChar::Other_Control || c == QChar::LineSeparator; },
        QChar(u' '));
    if (text == box.text())
        return;
    const int cursor = box.cursorPosition();
    box.setText(text);
    box.setCursorPosition(cursor);
    if (hasBrackets)
        SideHint::showBeside(box, QCoreApplication::translate(
                                "CommentBox",
                                "Round brackets would end a comment in the program, so they are "
                                "written as [ and ]"));
}

} // namespace torvik
