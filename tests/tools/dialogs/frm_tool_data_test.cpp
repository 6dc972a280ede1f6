// SPDX-License-Identifier: MIT
#include "tests/tools/dialogs/tool_dialogs_fixture.h"
#include "tools/dialogs/frm_tool_data.h"
#include "tools/dialogs/frm_tool_type.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include <memory>

namespace torvik {
namespace {

class FrmToolDataTest : public ToolDialogsTest {
protected:
    void show(std::int16_t place) {
        tools.gudtTools = {{7, "Slot drill", 6}, {3, "Spot", 3}};
        tools.gintToolCount = 2;
        registry.RegistryValuePut("ToolTypes", "1");
        registry.RegistryValuePut("ToolType01", "Engraver");
        form = std::make_unique<FrmToolData>(tools, registry, logger, messages, place);
        open(*form);
    }
    QLineEdit& number() { return find<QLineEdit>(*form, "txtToolNumber"); }
    QLineEdit& diameter() { return find<QLineEdit>(*form, "txtToolDiam"); }
    QComboBox& type() { return find<QComboBox>(*form, "cboToolType"); }
    static std::string hint(QLineEdit& box) {
        return box.findChild<QLabel*>("lblHint")->text().toStdString();
    }
    std::string types() {
        std::string all;
        for (int i = 7; i < type().count(); ++i) // behind the standard ones
            all += type().itemText(i).toStdString() + " ";
        return all;
    }
    bool canOk() { return canPress(*form, "cmdOk"); }
    void ok() { press(*form, "cmdOk"); }

    std::unique_ptr<FrmToolData> form;
};

TEST_F(FrmToolDataTest, OkNeedsANumberATypeAndADiameter) {
    show(0);
    EXPECT_EQ(form->windowTitle().toStdString(), "Add a new Tool");
    EXPECT_TRUE(number().hasFocus());
    QTest::keyClicks(&number(), "12");
    QTest::keyClicks(&diameter(), "0");
    EXPECT_FALSE(canOk());
    QTest::keyClick(&type(), Qt::Key_Down);
    EXPECT_TRUE(canOk());
    diameter().clear();
    EXPECT_FALSE(canOk());
    diameter().setText("6");
    number().setText("0");
    EXPECT_FALSE(canOk());
}

TEST_F(FrmToolDataTest, DiscardedKeysLeaveAHint) {
    show(0);
    QTest::keyClicks(&number(), "1-2./:a3");
    EXPECT_EQ(number().text(), "123");
    EXPECT_EQ(hint(number()), "Digits only");
    const char* const digits = "Three digits after the point at most";
    const struct {
        const char* name;
        const char* text;
        int caret, selected;
        const char* keys;
        const char* left;
        const char* hint = "";
    } rows[] = {
        {"a point begins a number", "", 0, 0, ".5", ".5"},
        {"a second one before the first", "1.5", 0, 0, ",", "1.5", "There is a point already"},
        {"a selection is replaced by a point", "1.5", 0, 3, ".", "."},
        {"a third decimal passes, a fourth does not", "1.25", 4, 0, "45", "1.254", digits},
        {"between the decimals, too", "1.250", 2, 0, "4", "1.250", digits},
        {"just before the point it is no decimal", "1.250", 1, 0, "4", "14.250"},
        {"a selection is replaced by a digit", "1.250", 4, 1, "4", "1.254"},
        {"backspace passes", "1.250", 5, 0, "\b", "1.25"},
        {"a comma is a point", "1", 1, 0, ",5", "1.5"},
        {"no minus", "", 0, 0, "-", "", "Only digits and the point"},
    };
    for (const auto& row : rows) {
        diameter().setText(row.text);
        diameter().setCursorPosition(row.caret);
        if (row.selected > 0)
            diameter().setSelection(row.caret, row.selected);
        QTest::keyClicks(&diameter(), row.keys);
        EXPECT_EQ(diameter().text(), row.left) << row.name;
        if (*row.hint != '\0') {
            EXPECT_EQ(hint(diameter()), row.hint) << row.name;
        }
    }
}

TEST_F(FrmToolDataTest, AFaultSelectsItsText) {
    show(0);
    type().setCurrentText("Slot drill");
    number().setText("7");
    diameter().setText("6");
    ok();
    EXPECT_EQ(messages.take(), "Tool number|48|Tool number 7 is already in use\n"
                               "Please enter a different number");
    EXPECT_TRUE(number().hasFocus());
    EXPECT_EQ(number().selectedText(), "7");
    number().setText("8");
    ok();
    EXPECT_EQ(messages.take(), "Tool type|48|You already have a tool of type Slot drill\n"
                               "with diameter 6mm\nPlease change your selection");
    EXPECT_TRUE(diameter().hasFocus());
    EXPECT_EQ(diameter().selectedText(), "6");
    EXPECT_TRUE(form->isVisible());
    diameter().setText("6.001");
    ok();
    EXPECT_EQ(messages.take(), "");
    EXPECT_EQ(tag(*form), "Ok");
}

TEST_F(FrmToolDataTest, AToolLeftAsItWasIsAccepted) {
    show(2); // its type is in none of the lists
    EXPECT_EQ(number().text() + type().currentText() + diameter().text(), "3Spot3.000");
    EXPECT_EQ(types(), "Engraver Spot ");
    ok();
    EXPECT_TRUE(form->isConfirmed());
}

TEST_F(FrmToolDataTest, EscapeCancelsAndClosingSaysNothing) {
    show(2);
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_EQ(tag(*form), "Cancel");
    show(2);
    form->close();
    EXPECT_EQ(tag(*form), "2");
}

TEST_F(FrmToolDataTest, TypesAreStoredOnlyWhenTheirDialogIsConfirmed) {
    show(0);
    type().setCurrentText("Engraver");
    const auto change = [&](const char* name, const char* leave) {
        inDialog<FrmToolType>(*form, "cmdToolType", [&](FrmToolType& dialog) {
            find<QLineEdit>(dialog, "txtNewType").setText(name);
            press(dialog, "cmdAdd");
            press(dialog, leave);
        });
    };
    change("Fly cutter", "cmdCancel");
    EXPECT_EQ(types(), "Engraver ");
    EXPECT_EQ(registry.strRegistryValueGet("ToolTypes", ""), "1");
    change("Fly cutter", "cmdOk");
    EXPECT_EQ(types(), "Engraver Fly cutter ");
    EXPECT_EQ(registry.strRegistryValueGet("ToolType02", ""), "Fly cutter");
    EXPECT_EQ(type().currentText(), "Engraver"); // the choice outlives the refill
    inDialog<FrmToolType>(*form, "cmdToolType", [](FrmToolType& dialog) {
        find<QListWidget>(dialog, "lstTypeUserNew").setCurrentRow(1);
        press(dialog, "cmdDelete");
        press(dialog, "cmdOk");
    });
    EXPECT_EQ(types(), "Fly cutter ");
    EXPECT_EQ(type().currentIndex(), -1); // unless its type is gone
}

} // namespace
} // namespace torvik
