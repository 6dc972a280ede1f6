// SPDX-License-Identifier: MIT
#include "forms/quiet_line.h"
#include "tests/wizard/pens/pen_page_fixture.h"
#include "wizard/header_page.h"

#include <QClipboard>
#include <QLabel>
#include <QLocale>

namespace torvik {
namespace {

using Texts = std::array<const char*, 9>;

class HeaderPageTest : public PageTest {
protected:
    HeaderPageTest() {
        job.drawing.gstrPlotFile = "/drawings/old.parts/Gear wheel.plt";
        page.show();
        QApplication::setActiveWindow(&page);
    }
    QLineEdit& box(std::size_t i) {
        return *page.findChild<QLineEdit*>("txtHead" + QString::number(i));
    }
    void fillJob(const Texts& texts) {
        for (std::size_t i = 0; i < texts.size(); ++i)
            job.answers.gstrHeader[static_cast<long>(i)] = texts[i];
        page.fill();
    }

    HeaderPage page{workshop};
};

TEST_F(HeaderPageTest, AnEmptyDateAndNameOfPartAreProposed) {
    fillJob({"  ", "", "", "", " ", "", "", "", ""});
    EXPECT_EQ(box(0).text(),
              QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
    EXPECT_EQ(box(4).text(), "Gear wheel");
    EXPECT_TRUE(box(1).hasFocus());
    fillJob({"1 May", "Jo", "Mr A", " ", "Cog", "Brass", "100", "", "5"});
    EXPECT_EQ(box(0).text() + box(4).text() + box(8).text(), "1 MayCog5");
    EXPECT_TRUE(box(3).hasFocus()); // the first that is empty, though it is optional
    fillJob({"1 May", "Jo", "Mr A", "9b", "Cog", "Brass", "100", "70", "5"});
    EXPECT_TRUE(box(0).hasFocus());
}

TEST_F(HeaderPageTest, DateDesignerNameAndMaterialMustBeFilled) {
    const std::tuple<Texts, std::size_t, std::string> rows[] = {
        {{"d", "n", "", "", "p", "m", "", "", ""}, 0, ""}, // the page may be left
        {{"", "", "", "", "", "", "", "", ""}, 0, "date"},
        {{"d", "  ", "t", "g", "p", "m", "1", "2", "3"}, 1, "designer"},
        {{"d", "n", "t", "g", "", "", "1", "2", "3"}, 4, "name of the part"},
        {{"d", "n", "t", "g", "p", " ", "1", "2", "3"}, 5, "material"},
    };
    for (const auto& [texts, wrong, asked] : rows) {
        for (std::size_t i = 0; i < texts.size(); ++i)
            box(i).setText(texts[i]);
        EXPECT_EQ(page.blnHeaderDone(), asked.empty()) << asked;
        EXPECT_EQ(messages.take(),
                  asked.empty() ? "" : "Required information|48|Please enter the " + asked);
        EXPECT_TRUE(asked.empty() || box(wrong).hasFocus()) << asked;
    }
}

TEST_F(HeaderPageTest, ALineHoldsTheBilletAgainstWhatIsMachined) {
    job = setUpDrawing("SP1;PU400,400;PD2800,2000;SP2;PD8000,0;");
    job.answers.gudtPens[2].blnOmit = true;
    job.answers.gudtSettings[1].sngDepth = 5;
    page.fill();
    const auto& line = *page.findChild<QuietLine*>("lblQuietHeader");
    const QString reach = "The cuts reach from X 10.00 to 70.00 mm and from Y 10.00 to 50.00 mm, "
                          "and go 5.00 mm deep.";
    EXPECT_EQ(line.text(), reach);
    QTest::keyClicks(&box(headerBilletX), "70");
    QTest::keyClicks(&box(headerBilletY), "49");
    QTest::keyClicks(&box(headerBilletZ), "1.5");
    EXPECT_EQ(line.text(),
              reach + "\nThe depth of the Black lines is 5.00 mm, but the billet is only 1.50 mm "
                      "thick. The tool would cut the table."
                      "\nThe drawing reaches Y50.000, outside the billet that lies from 0 to "
                      "Y49.000.");
    QTest::keyClicks(&box(headerBilletY), ".9");
    QTest::keyClick(&box(headerBilletY), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&box(headerBilletY), "50");
    EXPECT_EQ(line.text().count('\n'), 1);
}

TEST_F(HeaderPageTest, RoundBracketsBecomeSquareOnesAndBreaksBlanks) {
    QTest::keyClicks(&box(4), "Cog (big)");
    EXPECT_EQ(box(4).text(), "Cog [big]");
    box(4).setCursorPosition(3);
    QTest::keyClicks(&box(4), "(s)");
    EXPECT_EQ(box(4).text(), "Cog[s] [big]"); // typing goes on where it was
    QApplication::clipboard()->setText("(9b) and\n(9c)\t!");
    QTest::keyClick(&box(3), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box(3).text(), "[9b] and [9c] !");
    QApplication::clipboard()->setText("\u0141");
    QTest::keyClick(&box(5), Qt::Key_V, Qt::ControlModifier);
    const auto* const hint = box(5).findChild<QLabel*>("lblHint");
    ASSERT_NE(hint, nullptr);
    EXPECT_EQ(hint->text(), "A program cannot hold \u0141, so ? will stand there instead");
    fillJob({"1 (May)", "", "", "", "", "", "", "", ""}); // from answers kept by another program
    page.readBoxes();
    EXPECT_EQ(job.answers.gstrHeader[0] + job.answers.gstrHeader[4], "1 [May]Gear wheel");
}

} // namespace
} // namespace torvik
