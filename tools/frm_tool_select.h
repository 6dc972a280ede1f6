// SPDX-License-Identifier: MIT
// frmToolSelect: the workshop's tools as a sortable grid. One is picked here; tools are added,
// edited and deleted here too. The list in memory changes at once, the registry only on OK.
#pragma once

#include "tools/tool_list.h"

#include <QDialog>

#include <cstdint>
#include <string>

namespace torvik {

class Logger;
class Registry;
class StdMessageBox;

class FrmToolSelect : public QDialog {
    Q_OBJECT

public:
    FrmToolSelect(ToolList& tools, Registry& registry, Logger& logger, StdMessageBox& messages,
                  QWidget* parent = nullptr);

    // What the tool is for; the caption becomes "Select the Tool for the " and this.
    void setToolTitle(const std::string& title);
    // Places the dialog at the page that asks for the tool.
    void placeBeside(const QWidget& page);

    // The place of the chosen tool in the list, 0 where the dialog was cancelled.
    std::int16_t chosenPosition() const;
    // Whether a tool was deleted, so that places of the list have moved.
    bool hasDeleted() const;
};

} // namespace torvik
