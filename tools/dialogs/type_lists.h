// SPDX-License-Identifier: MIT
// Fills list boxes and combo boxes with tool types, and finds a type in a list whatever its case.
#pragma once

#include "tools/tool_list.h"

#include <QString>

class QComboBox;
class QListWidget;

namespace torvik {

// Clears the list and adds the seven standard types.
void ToolTypeStandardShow(QListWidget& list);
void ToolTypeStandardShow(QComboBox& list);

// Appends the users' types, each with its place in gstrUserToolTypes as item data.
void ToolTypeUserShow(QListWidget& list, const ToolList& tools);
void ToolTypeUserShow(QComboBox& list, const ToolList& tools);

// The row of the first item whose upper-cased text equals the given (upper-cased) one, or -1.
int intMatchRow(const QListWidget& list, const QString& upperText);

} // namespace torvik
