// SPDX-License-Identifier: MIT
#include "forms/dialog_places.h"

#include <QDialog>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

#include <algorithm>

namespace torvik {

void placeOnScreen(QDialog& dialog, const QPoint& topLeft) {
    dialog.adjustSize();
    // The system's frame is not known before the dialog is shown.
    const int title = dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &dialog);
    const int border = dialog.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const QSize whole = dialog.size() + QSize(2 * border, title + border);
    const QRect area = dialog.screen()->availableGeometry();
    const auto within = [](int wanted, int low, int high) {
        return std::max(std::min(wanted, high), low);
    };
    dialog.move(within(topLeft.x(), area.left(), area.right() + 1 - whole.width()),
                within(topLeft.y(), area.top(), area.bottom() + 1 - whole.height()));
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
