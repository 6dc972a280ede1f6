// SPDX-License-Identifier: MIT
#include "tests/tools/dialogs/tool_dialogs_fixture.h"
#include "tools/dialogs/frm_tool_data.h"
#include "tools/dialogs/frm_tool_select.h"
#include "tools/dialogs/tool_grid.h"

#include <QComboBox>
#include <QLineEdit>

#include <memory>

namespace torvik {
namespace {

class FrmToolSelectTest : public ToolDialogsTest {
protected:
    void show(ToolList list) {
        tools = std::move(list);
        form = std::make_unique<FrmToolSelect>(tools, registry, logger, messages);
        form->setToolTitle("6.0 mm diam. holes");
        open(*form);
    }
    ToolGrid& grid() { return find<ToolGrid>(*form, "grdTools"); }
    std::string actions() {
        std::string all;
        for (const char* name : {"cmdOk", "cmdEdit", "cmdDelete"})
            all += canPress(*form, name) ? name : "";
        return all;
    }
    std::string row(int at) {
        std::string all;
        for (int column = 0; column <= columnPlace; ++column)
            all += grid().item(at, column)->text().toStdString() + "|";
        return all;
    }
    void clickRow(int at, bool twice = false) {
        const QPoint middle = grid().visualRect(grid().model()->index(at, columnType)).center();
        QTest::mouseClick(grid().viewport(), Qt::LeftButton, Qt::NoModifier, middle);
        if (twice)
            QTest::mouseDClick(grid().viewport(), Qt::LeftButton, Qt::NoModifier, middle);
    }
    // Opens the tool's form, types, and leaves it with the key; with Escape if that is refused.
    void enter(const char* opener, const char* number, const char* type, const char* diameter,
               Qt::Key leave = Qt::Key_Return) {
        inDialog<FrmToolData>(*form, opener, [&](FrmToolData& dialog) {
            find<QLineEdit>(dialog, "txtToolNumber").setText(number);
            find<QComboBox>(dialog, "cboToolType").setCurrentText(type);
            find<QLineEdit>(dialog, "txtToolDiam").setText(diameter);
            QTest::keyClick(&dialog, leave);
            if (dialog.isVisible())
                QTest::keyClick(&dialog, Qt::Key_Escape);
        });
    }

    std::unique_ptr<FrmToolSelect> form;
};

constexpr const char* allActions = "cmdOkcmdEditcmdDelete";

TEST_F(FrmToolSelectTest, AnEmptyLibraryGetsItsFirstTool) {
    show({});
    EXPECT_EQ(form->windowTitle().toStdString(), "Select the Tool for the 6.0 mm diam. holes");
    clickRow(0);
    EXPECT_EQ(actions(), "");
    enter("cmdAdd", "012", "Reamer", "2.5");
    EXPECT_EQ(row(0), "012|Reamer|2.500|1|");
    EXPECT_EQ(actions(), allActions);
    EXPECT_EQ(registry.strRegistryValueGet("ToolCount", "none"), "none");
    press(*form, "cmdOk");
    EXPECT_EQ(registry.strRegistryValueGet("Tool01", ""), "12|Reamer|2.500|-2000.000");
    EXPECT_EQ(tag(*form), "1");
    EXPECT_FALSE(form->isVisible());
}

TEST_F(FrmToolSelectTest, TheNinthToolComesLastWithAScrollBar) {
    show(drills(8));
    const int width = grid().width();
    EXPECT_EQ(grid().viewport()->height(), 8 * grid().rowHeight(0));
    enter("cmdAdd", "5", "End mill", "6"); // the number is in use
    EXPECT_EQ(tools.gintToolCount, 8);
    enter("cmdAdd", "11", "End mill", "6");
    EXPECT_EQ(grid().width(), width + 16);
    EXPECT_EQ(grid().selectedRow(), 8);
    EXPECT_EQ(row(8), "11|End mill|6.000|9|");
    EXPECT_EQ(grid().rowAt(0), 1);
    clickRow(2);
    press(*form, "cmdDelete");
    EXPECT_EQ(grid().width(), width);
    EXPECT_EQ(row(7), "11|End mill|6.000|8|");
}

TEST_F(FrmToolSelectTest, AnEditedToolKeepsItsFourthNumber) {
    show(drills(2));
    tools.gudtTools[2].sngReserved = 15.5F;
    clickRow(1);
    enter("cmdEdit", "5", "Slot drill", "6");
    enter("cmdEdit", "8", "Reamer", "9", Qt::Key_Escape);
    EXPECT_EQ(row(1), "5|Slot drill|6.000|2|");
    EXPECT_EQ(tools.gudtTools[2].sngReserved, 15.5F);
    EXPECT_EQ(grid().selectedRow(), 1);
    press(*form, "cmdCancel");
    EXPECT_EQ(registry.strRegistryValueGet("ToolCount", "none"), "none");
    EXPECT_EQ(tools.gudtTools[2].intNumber, 5); // for the next confirmed selection
}

TEST_F(FrmToolSelectTest, ADeletionAsksFirst) {
    show(drills(2));
    clickRow(0);
    messages.answer = buttonNo;
    press(*form, "cmdDelete");
    EXPECT_EQ(messages.take(), "Tool Deletion|260|Are you sure you want to delete:\n"
                               "Tool no. 1\n(Drill  1.000 mm)?\n");
    EXPECT_EQ(grid().selectedRow(), 0);
    EXPECT_FALSE(form->hasDeleted());
    messages.answer = buttonYes;
    press(*form, "cmdDelete");
    EXPECT_TRUE(form->hasDeleted());
    EXPECT_EQ(row(0), "2|Drill|2.000|1|");
    EXPECT_EQ(grid().selectedRow(), -1);
    EXPECT_EQ(actions(), "cmdOk");
    press(*form, "cmdOk"); // stores the deletion, chooses nothing
    EXPECT_EQ(form->chosenPosition(), 0);
    EXPECT_EQ(registry.strRegistryValueGet("ToolCount", ""), "1");
}

TEST_F(FrmToolSelectTest, AHeaderButtonSortsByMouseAndKey) {
    show(drills(3));
    press(*form, "cmdSort0");
    EXPECT_EQ(row(0), "3|Drill|3.000|3|");
    QTest::keyClick(form.get(), Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return row(0) == "1|Drill|1.000|1|"; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return grid().hasFocus(); }));
}

TEST_F(FrmToolSelectTest, AToolIsChosenByADoubleClickOrByKeysAlone) {
    show(drills(3));
    clickRow(5, true); // an empty row
    EXPECT_TRUE(form->isVisible());
    clickRow(1, true);
    EXPECT_EQ(form->chosenPosition(), 2);
    show(drills(3));
    QTest::keyClick(&grid(), Qt::Key_Return);
    EXPECT_TRUE(form->isVisible()); // none is selected
    QTest::keyClick(&grid(), Qt::Key_Down);
    QTest::keyClick(&grid(), Qt::Key_Return);
    EXPECT_EQ(form->chosenPosition(), 1);
}

TEST_F(FrmToolSelectTest, KeysOfTheGridLookAtTheNumber) {
    show(drills(13));
    const auto after = [&](std::initializer_list<Qt::Key> keys) {
        QTest::qWait(QApplication::keyboardInputInterval() + 20);
        for (const Qt::Key key : keys)
            QTest::keyClick(&grid(), key);
        return grid().placeAt(grid().selectedRow());
    };
    QApplication::setKeyboardInputInterval(100);
    EXPECT_EQ(after({Qt::Key_1, Qt::Key_1}), 11);
    EXPECT_EQ(after({Qt::Key_1}), 1);
    EXPECT_EQ(after({Qt::Key_7}), 7);
    EXPECT_EQ(after({Qt::Key_D}), 7); // no type begins the search
    EXPECT_EQ(after({Qt::Key_End}), 13);
    EXPECT_EQ(after({Qt::Key_Home}), 1);
    messages.answer = buttonYes;
    EXPECT_EQ(after({Qt::Key_Delete}), 0);
    EXPECT_NE(messages.take().find("Tool no. 1\n"), std::string::npos);
    EXPECT_EQ(after({Qt::Key_End}), 12);
    inDialogAfter<FrmToolData>(
        *form, [](FrmToolData& dialog) { dialog.reject(); },
        [&] { QTest::keyClick(&grid(), Qt::Key_F2); });
}

TEST_F(FrmToolSelectTest, AToolThatCannotBeReadIsMendedOrDeletedButNotChosen) {
    ToolList list = drills(3);
    list.gudtTools[1].strUnreadable = "2|Reamer";
    list.gudtTools[1].intNumber = 0;
    list.gudtTools[2].strUnreadable = "";
    list.gudtTools[2].intNumber = 0;
    show(list);
    EXPECT_EQ(row(0), "|2|Reamer|cannot be read|1|");
    clickRow(0, true);
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(actions(), "cmdEditcmdDelete");
    inDialog<FrmToolData>(*form, "cmdEdit", [](FrmToolData& dialog) {
        EXPECT_EQ(find<QLineEdit>(dialog, "txtToolNumber").text(), "2");
        EXPECT_EQ(find<QComboBox>(dialog, "cboToolType").currentText(), "Reamer");
        find<QLineEdit>(dialog, "txtToolDiam").setText("4");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    EXPECT_EQ(row(0), "2|Reamer|4.000|1|");
    EXPECT_EQ(actions(), allActions);
    clickRow(1);
    press(*form, "cmdDelete");
    EXPECT_NE(messages.take().find("The tool that cannot be read"), std::string::npos);
    registry.RegistryValuePut("ToolCount", "1");
    registry.RegistryValuePut("Tool01", "3|Reamer|9.000|0.000");
    press(*form, "cmdOk");
    EXPECT_EQ(messages.take(),
              "Torvik|48|Another copy of Torvik has changed or deleted the same tools "
              "meanwhile:\nTool no. 3\nThey are saved as they are in this copy.");
    EXPECT_EQ(registry.strRegistryValueGet("Tool01", ""), "2|Reamer|4.000|-2000.000");
    EXPECT_EQ(registry.strRegistryValueGet("Tool02", ""), "3|Drill|3.000|-2000.000");
}

} // namespace
} // namespace torvik
