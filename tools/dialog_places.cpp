// SPDX-License-Identifier: MIT
#include "tools/dialog_places.h"

#include <QDialog>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace torvik {

void placeOnScreen(QDialog& dialog, const QPoint& topLeft) {
    dialog.adjustSize();
    const QRect area = dialog.screen()->availableGeometry();
    const auto within = [](int wanted, int low, int high) {
        return std::max(std::min(wanted, high), low);
    };
    dialog.move(within(topLeft.x(), area.left(), area.right() + 1 - dialog.width()),
                within(topLeft.y(), area.top(), area.bottom() + 1 - dialog.height()));
}

void centreOverMainWindow(QDialog& dialog) {
    const QWidget* main = dialog.parentWidget();
    while (main != nullptr && main->parentWidget() != nullptr)
        main = main->parentWidget();
    if (main == nullptr)
        return;
    dialog.adjustSize();
    QRect place = dialog.rect();
    place.moveCenter(main->geometry().center());
    placeOnScreen(dialog, place.topLeft());
}

QPushButton* makeDialogButton(const char* name, const QString& caption, const QString& toolTip) {
    auto* const button = new QPushButton(caption);
    button->setObjectName(QString::fromUtf8(name));
    button->setToolTip(toolTip);
    return button;
}

} // namespace torvik
