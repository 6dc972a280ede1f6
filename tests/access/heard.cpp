// SPDX-License-Identifier: MIT
#include "tests/access/heard.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>
#include <set>
#include <vector>

namespace torvik {
namespace {

using Role = QAccessible::Role;

constexpr int deepest = 20;
constexpr int mostRows = 40; // that are asked of a list

const std::set<Role> controls{
    QAccessible::Button,     QAccessible::CheckBox,    QAccessible::RadioButton,
    QAccessible::ComboBox,   QAccessible::SpinBox,     QAccessible::EditableText,
    QAccessible::Slider,     QAccessible::List,        QAccessible::ListItem,
    QAccessible::Table,      QAccessible::Tree,        QAccessible::PageTab,
    QAccessible::MenuItem,   QAccessible::PageTabList, QAccessible::Canvas,
    QAccessible::ButtonMenu, QAccessible::Cell,        QAccessible::ColumnHeader,
    QAccessible::Dialog,     QAccessible::ProgressBar, QAccessible::TreeItem};

// A name alone does not say what these are for.
const std::set<Role> described{QAccessible::SpinBox, QAccessible::EditableText,
                               QAccessible::ComboBox, QAccessible::Slider, QAccessible::Canvas};

std::string spoken(const QAccessibleInterface& item, QAccessible::Text what) {
    return item.text(what).toStdString();
}

std::string placeOf(const QAccessibleInterface& item) {
    const QObject* const object = item.object();
    return object == nullptr ? "a part of " + spoken(*item.parent(), QAccessible::Name)
                             : std::string(object->metaObject()->className()) + " " +
                                   object->objectName().toStdString();
}

bool takesTab(const QWidget& control) {
    return control.isVisible() && control.isEnabled() && control.focusProxy() == nullptr &&
           (control.focusPolicy() & Qt::TabFocus) != 0 && !control.objectName().startsWith("qt_");
}

// What a label shows may not be hidden behind its name.
bool saysItsText(const QAccessibleInterface& item) {
    const auto* const label = qobject_cast<const QLabel*>(item.object());
    if (label == nullptr || label->text().isEmpty() || label->textFormat() == Qt::RichText ||
        label->buddy() != nullptr)
        return true;
    const QString said = item.text(QAccessible::Name) + item.text(QAccessible::Description);
    const QStringList words = label->text().simplified().split(u' ');
    return std::all_of(words.begin(), words.end(), [&](const QString& word) {
        return said.contains(word) || word == QStringLiteral("\u00A0–");
    });
}

// A combo box tells its choice as its name: what it chooses says its label or its description.
bool saysWhatItChooses(const QAccessibleInterface& item) {
    const auto* const box = qobject_cast<QWidget*>(item.object());
    return !item.relations(QAccessible::Label).isEmpty() ||
           item.text(QAccessible::Description).contains(box->accessibleName());
}

void expectPartsInOrder(const QAccessibleInterface& item) {
    QRect before;
    for (int i = 0; i < item.childCount(); ++i) {
        const auto* const part = item.child(i);
        if (part->role() == QAccessible::Grip || part->state().invisible)
            continue;
        EXPECT_TRUE(before.isNull() || before.left() < part->rect().left() ||
                    before.top() < part->rect().top())
            << placeOf(item);
        before = part->rect();
    }
}

void expectItem(const QAccessibleInterface& item) {
    const bool isControl = controls.contains(item.role());
    const auto* const widget = qobject_cast<QWidget*>(item.object());
    if (widget != nullptr && takesTab(*widget)) {
        EXPECT_TRUE(isControl || item.role() == QAccessible::StaticText)
            << placeOf(item) << " is only heard as " << item.role();
    }
    if (isControl || item.role() == QAccessible::Graphic) {
        EXPECT_NE(spoken(item, QAccessible::Name), "") << placeOf(item);
    }
    if (described.contains(item.role())) {
        EXPECT_NE(spoken(item, QAccessible::Description), "") << placeOf(item);
    }
    if (item.role() == QAccessible::ComboBox) {
        EXPECT_TRUE(saysWhatItChooses(item)) << placeOf(item);
    }
    if (item.role() == QAccessible::Splitter)
        expectPartsInOrder(item);
    EXPECT_TRUE(saysItsText(item))
        << placeOf(item) << " is heard as " << spoken(item, QAccessible::Name);
}

void expectTree(const QAccessibleInterface& item, int depth) {
    if (!item.isValid() || item.state().invisible || depth > deepest)
        return;
    const bool isQts = item.object() != nullptr && item.object()->objectName().startsWith("qt_");
    if (!isQts)
        expectItem(item);
    for (int i = 0; i < std::min(item.childCount(), mostRows); ++i)
        if (const auto* const child = item.child(i))
            expectTree(*child, depth + 1);
}

// Of a group of options the arrow keys reach all but the chosen one.
bool isReachedByArrows(const QWidget& control) {
    const auto* const button = qobject_cast<const QAbstractButton*>(&control);
    return button != nullptr && button->group() != nullptr && button->group()->exclusive() &&
           button->group()->checkedButton() != nullptr && !button->isChecked();
}

std::vector<QWidget*> chain(QWidget& form) {
    std::vector<QWidget*> taking;
    for (QWidget* next = form.nextInFocusChain(); next != &form; next = next->nextInFocusChain())
        if (takesTab(*next) && next->window() == &form)
            taking.push_back(next);
    return taking;
}

QRect placeIn(const QWidget& widget, const QWidget& form) {
    return {widget.mapTo(&form, QPoint()), widget.size()};
}

// The two widgets beside one another that hold a and b.
std::pair<const QWidget*, const QWidget*> branches(const QWidget* a, const QWidget* b) {
    while (!a->parentWidget()->isAncestorOf(b))
        a = a->parentWidget();
    while (b->parentWidget() != a->parentWidget())
        b = b->parentWidget();
    return {a, b};
}

} // namespace

void expectHeard(QWidget& form) {
    const auto* const tree = QAccessible::queryAccessibleInterface(&form);
    EXPECT_NE(spoken(*tree, QAccessible::Name), "") << placeOf(*tree);
    expectTree(*tree, 0);
    for (QWidget* const control : chain(form)) // the tree of a table ends at its cells
        expectItem(*QAccessible::queryAccessibleInterface(control));
}

void expectTabGoesRound(QWidget& form) {
    const std::vector<QWidget*> all = chain(form);
    for (std::size_t i = 1; i < all.size(); ++i) {
        const auto [first, second] = branches(all[i - 1], all[i]);
        const QRect one = placeIn(*first, form);
        const QRect next = placeIn(*second, form);
        const bool below = one.top() > next.bottom();
        const bool behind = one.left() > next.right() && one.bottom() >= next.top();
        EXPECT_FALSE(below || behind) << all[i - 1]->objectName().toStdString() << " comes before "
                                      << all[i]->objectName().toStdString();
    }
    QWidget* const before = QApplication::focusWidget();
    std::set<const QWidget*> visited;
    for (std::size_t i = 0; i <= all.size() + 2 && QApplication::focusWidget() != nullptr; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        visited.insert(QApplication::focusWidget());
    }
    for (const QWidget* const control : all) {
        // What another control's focus closes is open again with that control's own.
        EXPECT_TRUE(visited.contains(control) || isReachedByArrows(*control) ||
                    !control->isEnabled())
            << control->objectName().toStdString() << " is not reached";
    }
    if (before != nullptr)
        before->setFocus();
}

} // namespace torvik
