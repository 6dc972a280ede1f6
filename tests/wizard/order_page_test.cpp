// SPDX-License-Identifier: MIT
#include "forms/quiet_line.h"
#include "tests/wizard/pens/pen_page_fixture.h"
#include "wizard/order_page.h"

namespace torvik {
namespace {

class OrderPageTest : public PageTest {
protected:
    void show(std::initializer_list<int> machined) {
        SetColourDefinitions(job);
        for (const int pen : machined)
            job.answers.gudtPens[pen].blnUsed = true;
        job.gintWizardStep = 4;
        page.resize(400, 500);
        page.show();
        page.ShowOrder(1);
        QApplication::setActiveWindow(&page);
        QApplication::processEvents();
    }
    QLabel* row(int i) { return page.findChild<QLabel*>("lblOrd" + QString::number(i)); }
    QLabel* picture(int i) { return page.findChild<QLabel*>("picOrd" + QString::number(i)); }
    QPushButton& button(const char* name) { return *page.findChild<QPushButton*>(name); }
    void click(QWidget* where) { QTest::mouseClick(where, Qt::LeftButton); }

    // The rows, the selected one in brackets, and the buttons that can be pressed.
    std::string rows() {
        std::string text;
        for (int i = 1; row(i) != nullptr; ++i) {
            const std::string caption = row(i)->text().toStdString();
            text += row(i)->autoFillBackground() ? "[" + caption + "] " : caption + " ";
            EXPECT_EQ(caption,
                      job.answers.gudtPens[row(i)->property("Tag").toString().toInt()].strColour);
            EXPECT_EQ(picture(i)->accessibleName(), QString("%1: ").arg(i) + row(i)->text());
        }
        text += button("cmdUp").isEnabled() ? "up " : "";
        return text + (button("cmdDown").isEnabled() ? "down" : "");
    }
    std::string order() {
        page.readOrder();
        std::string text;
        for (const std::int16_t pen : job.answers.gintOrder)
            text += std::to_string(pen);
        return text;
    }

    OrderPage page{workshop};
};

TEST_F(OrderPageTest, AChosenOrderStaysUntilAPenIsSwitched) {
    job.answers.gintOrder.fill(2); // stale
    show({1, 3, 4});
    EXPECT_EQ(rows(), "[Black] Green Blue down");
    click(row(3));
    click(&button("cmdUp"));
    EXPECT_EQ(order(), "14300000");
    EXPECT_TRUE(job.answers.gblnOrderSet);
    page.ShowOrder(-1);
    EXPECT_EQ(rows(), "[Black] Blue Green down");
    job.answers.gudtPens[1].blnOmit = true;
    job.answers.gblnOrderSet = false;
    page.ShowOrder(1);
    EXPECT_EQ(rows(), "[Green] Blue down");
    EXPECT_EQ(order(), "34000000");
    EXPECT_EQ(job.answers.gintOrderCount, 2);
    job.answers.gintOrder.fill(0);
    job.answers.gintOrder[2] = 4; // behind an entry without a pen
    page.ShowOrder(1);
    EXPECT_EQ(order(), "40000000");
}

TEST_F(OrderPageTest, TheSelectedRowTravelsWithItsPen) {
    show({1, 3, 4});
    click(row(3));
    EXPECT_EQ(rows(), "Black Green [Blue] up ");
    page.KeyCheck(38);
    EXPECT_EQ(rows(), "Black [Blue] Green up down");
    page.KeyCheck(38);
    page.KeyCheck(38); // nowhere to go
    page.ColourReOrder(-1);
    EXPECT_EQ(rows(), "[Blue] Black Green down");
    page.KeyCheck(40);
    page.KeyCheck(37); // no key of ours
    job.gintWizardStep = 5;
    page.KeyCheck(38); // another page's
    EXPECT_EQ(rows(), "Black [Blue] Green up down");
}

TEST_F(OrderPageTest, RowsSayHowTheirPensAreMachinedAndALineTheToolChanges) {
    job = setUpDrawing(threePens);
    job.answers.gudtPens[2].blnDrill = true;
    workshop.tools.gudtTools = {{7, "Slot drill", 6}, {3, "Drill", 3}, {4, "Drill", 5}};
    workshop.tools.gintToolCount = 3;
    job.answers.gudtSettings[1] = {1, 0, 0, 0, 0, 5.2F};
    job.answers.gudtSettings[3] = {2, 0, 0, 0, 0, 2};
    job.answers.gudtSettings[4] = {3, 0, 0, 0, 0, 6.5F};
    show({1, 2, 4});
    const auto said = [this] {
        QString text;
        for (const char* name : {"lblOrdWork1", "lblOrdWork2", "lblOrdWork3"})
            text += page.findChild<QLabel*>(name)->text().replace(QChar::Nbsp, ' ') + "\n";
        return (text + page.findChild<QuietLine*>("lblQuietOrder")->text()).toStdString();
    };
    const std::string holes = " – drill – T3 3.0 mm, T4 5.0 mm – 2.0 to 6.5 mm deep\n";
    EXPECT_EQ(said(), " – cut – T7 6.0 mm – 5.2 mm deep\n" + holes +
                          " – cut – no tool – 0.0 mm deep\nTool changes: 2");
    job.answers.gudtSettings[5] = {1, 0, 0, 0, 0, 1};
    page.ShowOrder(1);
    const std::string blue = " – cut – T7 6.0 mm – 1.0 mm deep\n";
    EXPECT_EQ(said(), " – cut – T7 6.0 mm – 5.2 mm deep\n" + holes + blue +
                          "Tool changes: 3. With another order of the pens there would be only 2.");
    page.ColourReOrder(1);
    EXPECT_EQ(said(), holes + " – cut – T7 6.0 mm – 5.2 mm deep\n" + blue + "Tool changes: 2");
}

TEST_F(OrderPageTest, TheColoursKeepTheFocusWhileTheMousePressesTheButtons) {
    show({1, 3, 4});
    page.ShowOrder(1); // now that the window is active
    EXPECT_TRUE(picture(1)->hasFocus());
    click(&button("cmdDown"));
    EXPECT_EQ(rows(), "Green [Black] Blue up down");
    EXPECT_TRUE(picture(2)->hasFocus());
}

TEST_F(OrderPageTest, ASingleRowLeavesDownOpenAndGoesNowhere) {
    page.ColourReOrder(1); // no row at all
    show({5});
    page.KeyCheck(40);
    EXPECT_EQ(rows(), "[Brown] down");
}

TEST_F(OrderPageTest, TheFocusOnAPictureSelectsItsRowAndStaysWithThePen) {
    show({1, 3, 4});
    picture(2)->setFocus();
    EXPECT_EQ(rows(), "Black [Green] Blue up down");
    page.KeyCheck(40);
    EXPECT_TRUE(picture(3)->hasFocus());
    page.ListItemClicked(2, 4);
    picture(3)->clearFocus();
    picture(3)->setFocus(Qt::ActiveWindowFocusReason); // the window came back: no choice
    EXPECT_EQ(rows(), "Black [Blue] Green up down");
    // A button that closes does not hand its focus to the other one.
    button("cmdUp").setFocus();
    QTest::keyClick(&button("cmdUp"), Qt::Key_Space);
    EXPECT_EQ(rows(), "[Blue] Black Green down");
    EXPECT_TRUE(picture(1)->hasFocus());
}

TEST_F(OrderPageTest, ARowIsDraggedPastOthersOneByOne) {
    show({1, 3, 4, 8});
    QTest::mousePress(row(1), Qt::LeftButton);
    const auto moveTo = [&](QPoint place) {
        const QPointF local = row(1)->mapFromGlobal(place);
        QMouseEvent move(QEvent::MouseMove, local, place, Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(row(1), &move);
    };
    moveTo(row(3)->mapToGlobal(QPoint(5, 5)));
    EXPECT_EQ(rows(), "Green Blue [Black] Purple up down");
    moveTo(page.mapToGlobal(QPoint(5, page.height() - 1)));
    EXPECT_EQ(rows(), "Green Blue Purple [Black] up ");
    moveTo(page.mapToGlobal(QPoint(5, 0)));
    EXPECT_EQ(rows(), "[Black] Green Blue Purple down");
    QTest::mouseRelease(row(1), Qt::LeftButton);
}

} // namespace
} // namespace torvik
