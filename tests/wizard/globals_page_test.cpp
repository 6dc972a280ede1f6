// SPDX-License-Identifier: MIT
#include "forms/quiet_line.h"
#include "tests/wizard/pens/pen_page_fixture.h"
#include "wizard/globals_page.h"
#include "wizard/heights_diagram.h"

#include <QLabel>

namespace torvik {
namespace {

class GlobalsPageTest : public PageTest {
protected:
    GlobalsPageTest() {
        workshop.job.gintWizardStep = 2;
        page.show();
        QApplication::setActiveWindow(&page);
    }
    QLineEdit& box(int i) { return *page.findChild<QLineEdit*>("txtGlob" + QString::number(i)); }
    QRadioButton& unit(int i) {
        return *page.findChild<QRadioButton*>("optUnits" + QString::number(i));
    }
    void type(int i, const char* keys) {
        box(i).selectAll();
        QTest::keyClicks(&box(i), keys);
    }
    void choose(int i) { QTest::mouseClick(&unit(i), Qt::LeftButton, {}, QPoint(8, 8)); }

    GlobalsPage page{workshop, host};
};

TEST_F(GlobalsPageTest, HeightsAreStoredAsTypedAndShownAsWholeMillimetres) {
    const std::tuple<const char*, float, const char*> rows[] = {
        {"50", 50, "50"},      {"2.5", 2.5F, "3"},
        {"-5.4", -5.4F, "-5"}, {"-", 0, ""}, // no number is 0, and 0 is an empty box
        {"1,5", 1.5F, "2"},    {"7.2.3-1", 7.23F, "7"},
    };
    float Answers::*const heights[] = {&Answers::gsngToolChangeHeight, &Answers::gsngSafeHeight,
                                       &Answers::gsngRapidDownTo};
    for (const auto& [typed, stored, shown] : rows) {
        for (const int i : {0, 1, 2}) {
            type(i, typed);
            page.SaveGlobals();
            EXPECT_EQ(job.answers.*heights[i], stored) << typed;
            page.RestoreGlobals();
            EXPECT_EQ(box(i).text(), shown) << typed;
        }
    }
}

TEST_F(GlobalsPageTest, ThePictureAndTheHintFollowTheFocus) {
    const auto& diagram = *page.findChild<HeightsDiagram*>("picHeights");
    const auto& hint = *page.findChild<QLabel*>("lblHeightHint");
    const char* const usual[] = {"Usual: 50 mm", "Usual: 5 mm", "Usual: 2 mm"};
    for (const int i : {2, 0, 1}) {
        box(i).setFocus();
        EXPECT_EQ(diagram.marked(), static_cast<std::size_t>(i));
        EXPECT_TRUE(hint.text().endsWith(usual[i])) << hint.text().toStdString();
    }
    unit(0).setFocus(); // the last height stays
    EXPECT_EQ(diagram.marked(), 1U);
}

TEST_F(GlobalsPageTest, TheUnitDecidesFactorAndCaption) {
    const std::pair<float, std::string> units[] = {{1.0F, "(mm/min)"}, {60.0F, "(mm/sec)"}};
    for (const int i : {0, 1}) {
        choose(i);
        page.SaveGlobals();
        EXPECT_EQ(std::make_pair(job.answers.gsngFeedFactor, job.answers.gstrFeedUnits), units[i]);
        choose(1 - i);
        page.RestoreGlobals();
        EXPECT_TRUE(unit(i).isChecked() && (unit(i).focusPolicy() & Qt::TabFocus) != 0);
        EXPECT_EQ(unit(1 - i).focusPolicy() & Qt::TabFocus, 0);
    }
    job.answers.gsngFeedFactor = 0; // before the first choice
    choose(0);
    page.RestoreGlobals();
    EXPECT_TRUE(unit(1).isChecked());
}

TEST_F(GlobalsPageTest, TheFirstHeightThatIsZeroIsNamedAndSelected) {
    const std::tuple<std::array<const char*, 3>, int, std::string> rows[] = {
        {{"50", "-5", " 2.5"}, 0, ""}, // the page may be left
        {{"0", "0", "2"}, 0, "The Tool Change Height may not be zero"},
        {{"50", "0.0", "2"}, 1, "The Safe Height for Rapids may not be zero"},
        {{"50", "5", "6.5.20"}, 2, "The Rapid Down To is not a number"},
        {{"50", "1e39", "2"}, 1, "The Safe Height for Rapids is too large a number"},
    };
    for (const auto& [texts, wrong, message] : rows) {
        for (const int i : {0, 1, 2})
            box(i).setText(texts[static_cast<std::size_t>(i)]);
        page.SaveGlobals(); // silent whatever stands there
        EXPECT_EQ(page.blnGlobalsValid(), message.empty());
        EXPECT_EQ(messages.take(), message.empty() ? "" : "Torvik|48|" + message);
        EXPECT_TRUE(message.empty() || box(wrong).hasFocus()) << message;
        EXPECT_TRUE(message.empty() || box(wrong).selectedText() == box(wrong).text()) << message;
    }
}

TEST_F(GlobalsPageTest, ALineSaysTheWorstOfTheHeights) {
    const std::pair<std::array<const char*, 3>, std::string> rows[] = {
        {{"50", "5", "2"}, ""},
        {{"50", "", "2"}, "Safe Height for Rapids is empty"},
        {{"", "", "-2"},
         "The Rapid Down To must be above 0, or the tool goes through the material at full speed."},
        {{"50", "60", "0"},
         "The Rapid Down To must be above 0, or the tool goes through the material at full speed."},
        {{"50", "5", "5.5"},
         "The Safe Height for Rapids is lower than the Rapid Down To. It should be at least as "
         "high."},
    };
    for (const auto& [texts, said] : rows) {
        for (const int i : {0, 1, 2})
            box(i).setText(texts[static_cast<std::size_t>(i)]);
        EXPECT_EQ(page.findChild<QuietLine*>("lblQuietHeights")->text().toStdString(), said);
    }
}

} // namespace
} // namespace torvik
