// SPDX-License-Identifier: MIT
#include "app/message_window.h"
#include "forms/plain_texts.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QToolTip>

#include <functional>
#include <gtest/gtest.h>

namespace torvik {
namespace {

// Asks, and does the work on the message box that then waits.
int ask(int style, const std::function<void(QMessageBox&)>& work) {
    QTimer::singleShot(0, qApp, [&work] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        work(*box);
    });
    const PlainTexts plain;
    MessageWindow messages;
    return messages.intStdMsgBox("First line\n<b>second</b> line", style, "Some title");
}

TEST(PlainTexts, LabelsAndTooltipsShowMarkupAsTextUnlessTheyAskForIt) {
    const PlainTexts plain;
    const QString markup = "<b>Drill</b>";
    QLabel asText(markup);
    QLabel asMarkup(markup);
    asMarkup.setTextFormat(Qt::RichText);
    EXPECT_GT(asText.sizeHint().width(), asMarkup.sizeHint().width());
    QToolTip::showText({5, 5}, markup, &asText);
    for (const QWidget* const window : QApplication::topLevelWidgets())
        if (const auto* const tip = qobject_cast<const QLabel*>(window); tip && tip->isVisible()) {
            EXPECT_EQ(tip->text(), markup);
            EXPECT_EQ(tip->textFormat(), Qt::PlainText);
        }
    EXPECT_TRUE(QToolTip::isVisible());
    QToolTip::hideText();
}

TEST(MessageWindow, HasTheButtonsIconDefaultAndEscapeOfItsStyle) {
    const auto yesNo = QMessageBox::Yes | QMessageBox::No;
    const struct {
        const char* name;
        int style;
        QMessageBox::Icon icon;
        QMessageBox::StandardButtons buttons;
        int byEnter;
        int byEscape;
    } styles[] = {
        {"a note", styleExclamation, QMessageBox::Warning, QMessageBox::Ok, buttonOk, buttonOk},
        {"a question", styleQuestion, QMessageBox::Question, yesNo, buttonYes, buttonNo},
        {"a question with No as default", styleQuestionDefaultNo, QMessageBox::Question, yesNo,
         buttonNo, buttonNo},
        {"something to try again", styleRetryExclamation, QMessageBox::Warning,
         QMessageBox::Retry | QMessageBox::Cancel, buttonRetry, buttonCancel},
    };
    for (const auto& row : styles) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(ask(row.style,
                      [&](QMessageBox& box) {
                          EXPECT_EQ(box.standardButtons(), row.buttons);
                          EXPECT_EQ(box.icon(), row.icon);
                          EXPECT_EQ(box.windowTitle(), "Some title");
                          EXPECT_EQ(box.text(), "First line\n<b>second</b> line");
                          EXPECT_EQ(box.textFormat(), Qt::PlainText); // no markup
                          QTest::keyClick(&box, Qt::Key_Escape);
                      }),
                  row.byEscape);
        EXPECT_EQ(ask(row.style,
                      [](QMessageBox& box) { QTest::keyClick(box.focusWidget(), Qt::Key_Return); }),
                  row.byEnter);
        EXPECT_EQ(ask(row.style, [](QMessageBox& box) { box.close(); }), row.byEscape)
            << "closed by its close box";
    }
}

} // namespace
} // namespace torvik
