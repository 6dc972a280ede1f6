// SPDX-License-Identifier: MIT
#include "app/help_key.h"
#include "app/help_window.h"
#include "app/resources.h"
#include "tests/app/app_fixture.h"
#include "tests/support/form_walk.h"
#include "tests/wizard/pens/pen_page_fixture.h"
#include "tools/dialogs/frm_tool_select.h"
#include "wizard/frm_main.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTimer>

namespace torvik {
namespace {

void expectShown(const HelpWindow& help, int topic) {
    EXPECT_EQ(help.findChild<QTextBrowser*>("txtHelp")->source().fileName(),
              QFileInfo(HelpWindow::topicFile(topic)).fileName());
}

TEST(HelpTopics, AreAllBuiltIn) {
    loadResources();
    const QStringList topics = QDir(TORVIK_HELP).entryList(QDir::Files);
    EXPECT_EQ(QDir(":/help").entryList(QDir::Files), topics);
    EXPECT_EQ(QDir(":/help/de").entryList(QDir::Files), topics);
}

TEST(HelpTopics, AreTitledPagesWhoseLinksLeadSomewhere) {
    loadResources();
    const QRegularExpression link("<a href=\"([^\"]*)\">");
    for (const QFileInfo& entry :
         QDir(":/help").entryInfoList(QDir::Files) + QDir(":/help/de").entryInfoList(QDir::Files)) {
        SCOPED_TRACE(entry.filePath().toStdString());
        const QDir folder = entry.dir();
        QFile file(entry.filePath());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QString html = QString::fromUtf8(file.readAll());
        QTextDocument page;
        page.setHtml(html);
        EXPECT_EQ(page.firstBlock().text(), page.metaInformation(QTextDocument::DocumentTitle));
        for (const auto& found : link.globalMatch(html))
            EXPECT_TRUE(folder.exists(found.captured(1))) << found.captured(1).toStdString();
    }
}

TEST(HelpWindow, ShowsTheTopicMarksItInTheContentsAndFollowsLinks) {
    HelpWindow help;
    auto& contents = *help.findChild<QListWidget*>("lstHelp");
    auto& page = *help.findChild<QTextBrowser*>("txtHelp");
    help.showTopic(242);
    expectShown(help, 242);
    EXPECT_EQ(contents.currentItem()->text(), "Final pass depth of cut");

    ASSERT_TRUE(QTest::qWaitForWindowActive(&help));
    expectReachable(help);
    QTest::keyClick(&page, Qt::Key_Tab); // to the first link
    QTest::keyClick(&page, Qt::Key_Return);
    expectShown(help, 244);
    EXPECT_EQ(contents.currentItem()->text(), "Final pass horizontal feed rate");

    contents.setCurrentRow(0);
    expectShown(help, 1);
    help.showTopic(7777); // a number without a topic
    expectShown(help, 1);
    QTest::keyClick(&help, Qt::Key_Escape);
    EXPECT_FALSE(help.isVisible());
}

TEST(HelpWindow, SearchesForAllWordsInAnyCase) {
    HelpWindow help;
    auto& contents = *help.findChild<QListWidget*>("lstHelp");
    const auto found = [&](const char* words) {
        help.findChild<QLineEdit*>("txtHelpSearch")->setText(words);
        QStringList titles;
        for (int i = 0; i < contents.count(); ++i)
            if (!contents.item(i)->isHidden())
                titles += contents.item(i)->text();
        return titles;
    };
    EXPECT_EQ(found("CORN bird"), QStringList{"Pecks and peck distance"});
    EXPECT_TRUE(found("no such word").isEmpty());
    EXPECT_EQ(found(" ").size(), contents.count());
}

class HelpKeyTest : public AppTest {
protected:
    HelpKeyTest() {
        workshop.tools.gudtTools = {{1, "Slot drill", 6}};
        workshop.tools.gintToolCount = 1;
        window.show();
        QApplication::setActiveWindow(&window);
    }

    NoRegistry registry;
    ScriptedMessages messages;
    Logger logger;
    Workshop workshop{registry, logger, messages};
    HelpWindow help;
    FrmMain window{workshop,
                   {.showHelp = [this](int context) { help.showTopic(context); },
                    .showAbout = [] {},
                    .Shutdown = [] {}}};
    HelpKey key{[this](const QWidget* control) { window.showHelpFor(control); }};
};

TEST_F(HelpKeyTest, EveryStepAndControlHasATopic) {
    std::set<int> numbers{1,  2,  3,  4,   5,   6,   10,  20,  50,  52,  60,
                          80, 90, 95, 100, 105, 110, 115, 120, 125, 242, 244};
    for (const QWidget* const control : window.findChildren<QWidget*>())
        numbers.insert(control->property("helpContext").toInt());
    numbers.erase(0); // asks for none
    for (const int number : numbers)
        EXPECT_TRUE(QFile::exists(HelpWindow::topicFile(number))) << number;
}

TEST_F(HelpKeyTest, HelpsInADialogThatWaitsAndCanBeUsedBesideIt) {
    FrmToolSelect dialog(workshop.tools, registry, logger, messages, &window);
    QTimer::singleShot(0, &dialog, [&] {
        QApplication::setActiveWindow(&dialog);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
        expectShown(help, 60);
        auto& contents = *help.findChild<QListWidget*>("lstHelp");
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&help));
        const QPoint first = contents.visualItemRect(contents.item(0)).center();
        QTest::mouseClick(help.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                          contents.viewport()->mapTo(&help, first));
        expectShown(help, 1);
        dialog.reject();
    });
    dialog.exec();
    EXPECT_TRUE(help.isVisible());
    EXPECT_EQ(messages.take(), "");
}

} // namespace
} // namespace torvik
