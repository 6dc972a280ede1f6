// SPDX-License-Identifier: MIT
#include "tests/access/seen.h"

#include "forms/contrast.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QTabBar>
#include <QTextEdit>
#include <QToolButton>

#include <gtest/gtest.h>
#include <map>

namespace torvik {
namespace {

constexpr int edgeRoom = 5; // pixels that belong to a control's edge

std::string named(const QWidget& widget) {
    return std::string(widget.metaObject()->className()) + " " + widget.objectName().toStdString();
}

template <typename... Kinds>
bool isOneOf(const QWidget& widget) {
    return ((qobject_cast<const Kinds*>(&widget) != nullptr) || ...);
}

QRgb groundOf(const QImage& image) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    return std::ranges::max_element(counts, {}, [](const auto& count) { return count.second; })
        ->first;
}

double bestContrast(const QImage& image, const QColor& ground) {
    double best = 1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            best = std::max(best, contrast(image.pixelColor(x, y), ground));
    return best;
}

bool showsText(const QWidget& widget) {
    if (const auto* const label = qobject_cast<const QLabel*>(&widget))
        return !label->text().isEmpty();
    if (const auto* const button = qobject_cast<const QAbstractButton*>(&widget))
        return !button->text().isEmpty();
    if (const auto* const box = qobject_cast<const QLineEdit*>(&widget))
        return !box->displayText().isEmpty() || !box->placeholderText().isEmpty();
    if (const auto* const view = qobject_cast<const QAbstractItemView*>(&widget))
        return view->model() != nullptr && view->model()->rowCount() > 0;
    return isOneOf<QComboBox, QTabBar, QMenuBar, QTextEdit>(widget);
}

bool hasEdge(const QWidget& widget) {
    if (isOneOf<QAbstractItemView>(*widget.parentWidget()))
        return false; // the head of a column
    const auto* const box = qobject_cast<const QLineEdit*>(&widget);
    return (box != nullptr && box->hasFrame() && !box->objectName().startsWith("qt_")) ||
           isOneOf<QComboBox, QAbstractSpinBox, QCheckBox, QRadioButton, QPushButton>(widget);
}

// The pixels at the left end of a control, half way down, where only its edge lies.
QImage edgeOf(const QImage& form, const QRect& place) {
    return form.copy(QRect(place.left(), place.center().y(), 3, 1));
}

QRect markOf(const QWidget& widget) {
    QStyleOptionButton option;
    option.initFrom(&widget);
    const bool isCheck = isOneOf<QCheckBox>(widget);
    return isCheck || isOneOf<QRadioButton>(widget)
               ? widget.style()->subElementRect(isCheck ? QStyle::SE_CheckBoxIndicator
                                                        : QStyle::SE_RadioButtonIndicator,
                                                &option, &widget)
               : widget.rect();
}

} // namespace

void expectContrast(QWidget& form) {
    const QImage whole = form.grab().toImage();
    for (QWidget* const widget : form.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !widget->isEnabled() || widget->visibleRegion().isEmpty())
            continue;
        if (showsText(*widget)) {
            const int room = isOneOf<QLabel>(*widget) ? 0 : edgeRoom;
            const QImage text =
                widget->grab(widget->rect().adjusted(room, room, -room, -room)).toImage();
            EXPECT_GE(bestContrast(text, groundOf(text)), textContrast) << named(*widget);
        }
        const auto* const flat = qobject_cast<const QPushButton*>(widget);
        if (hasEdge(*widget) && (flat == nullptr || !flat->isFlat())) {
            const QRect mark = markOf(*widget);
            const QRect place(widget->mapTo(&form, mark.topLeft()), mark.size());
            EXPECT_GE(bestContrast(edgeOf(whole, place), widget->palette().color(QPalette::Window)),
                      edgeContrast)
                << named(*widget) << " has no edge";
        }
    }
}

void expectTargets(QWidget& form) {
    static constexpr int least = 24;
    const auto expectTarget = [](const QRect& place, const QWidget& widget) {
        EXPECT_GE(std::min(place.width(), place.height()), least)
            << named(widget) << " " << place.width() << " x " << place.height();
    };
    for (QWidget* const widget : form.findChildren<QWidget*>()) {
        if (!widget->isVisible())
            continue;
        if (isOneOf<QAbstractButton, QLineEdit, QComboBox, QAbstractSpinBox>(*widget) &&
            !widget->objectName().startsWith("qt_"))
            expectTarget(widget->rect(), *widget);
        if (const auto* const tabs = qobject_cast<QTabBar*>(widget))
            for (int i = 0; i < tabs->count(); ++i)
                expectTarget(tabs->tabRect(i), *widget);
        if (const auto* const menus = qobject_cast<QMenuBar*>(widget))
            for (QAction* const menu : menus->actions())
                expectTarget(menus->actionGeometry(menu), *widget);
        const auto* const view = qobject_cast<const QAbstractItemView*>(widget);
        if (view != nullptr && !isOneOf<QHeaderView>(*view) && view->model() != nullptr &&
            view->model()->rowCount() > 0 &&
            view->selectionMode() != QAbstractItemView::NoSelection)
            expectTarget(view->visualRect(view->model()->index(0, 0)), *widget);
    }
}

void expectUncut(QWidget& form) {
    constexpr QSize room = QSize(1024, 768) - QSize(16, 48); // without the window's frame
    form.resize(form.size().boundedTo(room));
    QApplication::processEvents();
    QApplication::processEvents(); // what is laid out again in the first
    const QSize size = form.size();
    EXPECT_TRUE(size.width() <= room.width() && size.height() <= room.height())
        << size.width() << " x " << size.height();
    for (const QWidget* const widget : form.findChildren<QWidget*>()) {
        if (!widget->isVisible() || !showsText(*widget) ||
            isOneOf<QAbstractItemView, QTextEdit, QLineEdit>(*widget))
            continue;
        const auto* const label = qobject_cast<const QLabel*>(widget);
        const bool wraps = label != nullptr && label->wordWrap();
        const QSize wanted = wraps ? QSize(0, widget->heightForWidth(widget->width()))
                                   : widget->minimumSizeHint().boundedTo(widget->sizeHint());
        EXPECT_TRUE(widget->width() >= wanted.width() && widget->height() >= wanted.height())
            << named(*widget) << " " << widget->width() << " x " << widget->height() << ", needs "
            << wanted.width() << " x " << wanted.height();
    }
}

} // namespace torvik
