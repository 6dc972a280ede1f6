// SPDX-License-Identifier: MIT
// Small pieces that the form pages share.
#pragma once

#include <QString>

class QGridLayout;
class QLabel;
class QLineEdit;
class QWidget;

namespace torvik {

// A page's title line.
QLabel* makePageTitle(const QString& text);

// A path that a label may break behind every separator.
QString breakablePath(QString path);

// A line in the warning's colour, hidden while there is no text.
QLabel* makeWarning(const QString& name);
void showWarning(QLabel& label, const QString& text);

// Sets what a label says; its name for assistive tools says first what that is.
void showNamed(QLabel& label, const QString& name, const QString& text);

// Puts one row into a form: the caption (an access key in it leads to the box), the box and its
// unit. Names the box for assistive tools and gives both the help context number.
QLabel* addFormRow(QGridLayout& form, int row, const QString& caption, QLineEdit* box,
                   const QString& unit, int helpContext);

} // namespace torvik
