// SPDX-License-Identifier: MIT
#include "tests/tools/dialogs/tool_dialogs_fixture.h"
#include "tools/dialogs/frm_tool_type.h"

#include <QLineEdit>
#include <QListWidget>

#include <memory>

namespace torvik {
namespace {

class FrmToolTypeTest : public ToolDialogsTest {
protected:
    void show(std::initializer_list<const char*> types) {
        int count = 0;
        for (const char* type : types)
            registry.RegistryValuePut("ToolType0" + std::to_string(++count), type);
        registry.RegistryValuePut("ToolTypes", std::to_string(count));
        tools.gudtTools = {{1, "Spot", 3}};
        tools.gintToolCount = 1;
        form = std::make_unique<FrmToolType>(tools, registry, logger, messages);
        open(*form);
    }
    QListWidget& list(const char* name) { return find<QListWidget>(*form, name); }
    QLineEdit& name() { return find<QLineEdit>(*form, "txtNewType"); }
    // The items as "text:place", the selected one in brackets.
    std::string items(const char* which) {
        std::string all;
        for (int row = 0; row < list(which).count(); ++row) {
            const QListWidgetItem& item = *list(which).item(row);
            const std::string text =
                item.text().toStdString() + ":" + item.data(Qt::UserRole).toString().toStdString();
            all += (row == 0 ? "" : " ") + (item.isSelected() ? "[" + text + "]" : text);
        }
        return all;
    }
    std::string selected() {
        std::string all;
        for (const char* which : {"lstTypeStandard", "lstTypeUser", "lstTypeUserNew"})
            for (const QListWidgetItem* item : list(which).selectedItems())
                all += item->text().toStdString() + " ";
        for (const char* action : {"cmdAdd", "cmdDelete"})
            all += canPress(*form, action) ? action : "";
        return all;
    }
    std::string types() {
        std::string all;
        for (int i = 1; i <= tools.gintUserToolTypeCount; ++i)
            all += tools.gstrUserToolTypes[i] + " ";
        return all;
    }
    void clickItem(const char* which, int row) {
        QListWidget& in = list(which);
        QTest::mouseClick(in.viewport(), Qt::LeftButton, Qt::NoModifier,
                          in.visualItemRect(in.item(row)).center());
    }

    std::unique_ptr<FrmToolType> form;
};

TEST_F(FrmToolTypeTest, TypesInUseStandApartAndOneItemOfThreeListsIsSelected) {
    show({"Fly", "Spot", "SPOT", "Engraver"});
    EXPECT_EQ(items("lstTypeUser"), "Spot:2");
    EXPECT_EQ(items("lstTypeUserNew"), "Engraver:4 SPOT:3 Fly:1");
    EXPECT_EQ(selected(), "");
    clickItem("lstTypeUserNew", 2);
    EXPECT_EQ(selected(), "Fly cmdDelete");
    clickItem("lstTypeStandard", 2);
    EXPECT_EQ(selected(), "Drill ");
    clickItem("lstTypeUser", 0);
    EXPECT_EQ(selected(), "Spot ");
}

TEST_F(FrmToolTypeTest, ANameThatIsThereCannotBeAdded) {
    show({"Fly", "Spot", "Fräser"});
    const struct {
        const char* name;
        const char* text;
        const char* state;
    } rows[] = {
        {"a new name", "Tap", "cmdAdd"},
        {"a standard type in another case", "REAMER", "Reamer "},
        {"a type in use between blanks", " spot ", "Spot "},
        {"umlauts have cases too", "FRÄSER", "Fräser cmdDelete"},
    };
    for (const auto& row : rows) {
        name().clear();
        list("lstTypeStandard").clearSelection();
        name().setText(row.text);
        EXPECT_EQ(selected(), row.state) << row.name;
        const bool isKnown = std::string_view(row.state).find(' ') != std::string_view::npos;
        EXPECT_EQ(name().selectedText(), isKnown ? row.text : "") << row.name;
    }
}

TEST_F(FrmToolTypeTest, ANewTypeIsAddedAsTypedButForRoundBrackets) {
    show({"Spot"});
    name().setText(" Tap|M3 (");
    QTest::keyClicks(&name(), ") ");
    QTest::keyClick(&name(), Qt::Key_Return); // adds, and does not close
    EXPECT_EQ(items("lstTypeUserNew"), "[ Tap|M3 [] :2]");
    EXPECT_EQ(tools.gstrUserToolTypes[2], " Tap|M3 [] ");
    EXPECT_EQ(name().text(), "");
    QTest::keyClick(&name(), Qt::Key_Return);
    EXPECT_EQ(tag(*form), "Ok");
}

TEST_F(FrmToolTypeTest, ANameThatCannotBeStoredIsRefused) {
    show({});
    name().setText(QString(80, u'x'));
    press(*form, "cmdAdd");
    EXPECT_EQ(messages.take(), "Tool type|48|The tool type is too long to be stored\n"
                               "Please enter a shorter name");
    EXPECT_EQ(name().selectedText().size(), 80);
    name().setText(QString(79, u'x'));
    press(*form, "cmdAdd");
    EXPECT_EQ(tools.gintUserToolTypeCount, 1);
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_EQ(tag(*form), "Cancel");
}

TEST_F(FrmToolTypeTest, ADeletedTypeLeavesTheOthersPlacesAlone) {
    show({"A", "B", "Spot", "D"});
    clickItem("lstTypeUserNew", 1);
    press(*form, "cmdDelete");
    EXPECT_EQ(types(), "A Spot D ");
    EXPECT_EQ(items("lstTypeUserNew"), "D:4 A:1");
    EXPECT_EQ(selected(), "");
    clickItem("lstTypeUserNew", 0); // its place lies behind the end by now
    press(*form, "cmdDelete");
    name().setText("E");
    press(*form, "cmdAdd");
    EXPECT_EQ(items("lstTypeUserNew"), "A:1 [E:3]");
    EXPECT_EQ(types(), "A Spot E ");
    EXPECT_EQ(messages.take(), "");
    press(*form, "cmdOk");
    EXPECT_EQ(messages.take(), "");

    show({"A", "B", "Spot", "D", "F"});
    clickItem("lstTypeUserNew", 3); // A; D takes the third place
    press(*form, "cmdDelete");
    clickItem("lstTypeUserNew", 2); // B is meant, the second place is Spot's
    press(*form, "cmdDelete");
    press(*form, "cmdOk");
    EXPECT_EQ(messages.take(), "Tool type|48|Other types were deleted than those that were chosen. "
                               "These are kept now:\nB\nD\nF");
    EXPECT_EQ(items("lstTypeUserNew"), "F:3 D:2 B:1");
    EXPECT_EQ(tag(*form), "Ok");
}

} // namespace
} // namespace torvik
