// SPDX-License-Identifier: MIT
#include "forms/comment_box.h"

#include "base/text.h"
#include "forms/side_hint.h"

#include <QCoreApplication>
#include <QLineEdit>

#include <algorithm>

namespace torvik {
namespace {

// Says which letters a program cannot hold, when there are others than before.
void sayLostLetters(QLineEdit& box, const QString& text) {
    constexpr const char* saidProperty = "lostLetters";
    const QString lost = QString::fromStdString(lettersOutsideLatin1(text.toStdString()));
    if (lost == box.property(saidProperty).toString())
        return;
    box.setProperty(saidProperty, lost);
    if (!lost.isEmpty())
        SideHint::showBeside(box, QCoreApplication::translate("CommentBox",
                                                              "A program cannot hold %1, so ? will "
                                                              "stand there instead")
                                      .arg(lost));
}

} // namespace

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
    sayLostLetters(box, text);
    if (text == box.text())
        return;
    const int cursor = box.cursorPosition();
    box.setText(text);
    box.setCursorPosition(cursor);
    if (hasBrackets)
        SideHint::showBeside(
            box, QCoreApplication::translate(
                     "CommentBox", "Round brackets would end a comment in the program, so they are "
                                   "written as [ and ]"));
}

} // namespace torvik
