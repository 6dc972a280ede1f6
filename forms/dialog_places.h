// SPDX-License-Identifier: MIT
// Where the tool dialogs stand on the screen, and what their controls have in common.
#pragma once

#include <QString>

class QDialog;
class QPoint;
class QPushButton;
class QWidget;

namespace torvik {

inline constexpr const char* tagProperty = "Tag"; // a dialog's result, one of these
inline constexpr const char* tagOk = "Ok";
inline constexpr const char* tagCancel = "Cancel";
inline constexpr int dialogMargin = 14; // pixels round a dialog's controls

// Moves the dialog's frame to the place (of the screen), or to the nearest one that shows all of
// it.
void placeOnScreen(QDialog& dialog, const QPoint& topLeft);

// Centres the dialog over the window that all the others belong to; none: left to the system.
void centreOverMainWindow(QDialog& dialog);

QPushButton* makeDialogButton(const char* name, const QString& caption, const QString& toolTip);

} // namespace torvik
