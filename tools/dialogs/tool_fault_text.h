// SPDX-License-Identifier: MIT
// What the user is told about a tool that cannot join the list.
#pragma once

#include "tools/tool_entry.h"

#include <QString>

namespace torvik {

enum class ToolField { number, diameter };

struct ToolFaultText {
    ToolField field; // the box to blame
    QString title;
    QString message;
};

ToolFaultText toolFaultText(ToolFault fault, const ToolEntry& entry);

} // namespace torvik
