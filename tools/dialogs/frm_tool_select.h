// SPDX-License-Identifier: MIT
// frmToolSelect: the workshop's tools as a sortable grid. One is picked here; tools are added,
// edited and deleted here too. The list in memory changes at once, the registry only on OK.
#pragma once

#include "tools/tool_list.h"

#include <QDialog>
#include <QTimer>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class QPushButton;

namespace torvik {

class Logger;
class Registry;
class SortButton;
class StdMessageBox;
class ToolGrid;

class FrmToolSelect : public QDialog {
    Q_OBJECT

public:
    FrmToolSelect(ToolList& tools, Registry& registry, Logger& logger, StdMessageBox& messages,
                  QWidget* parent = nullptr);

    // What the tool is for; the caption becomes "Select the Tool for the " and this.
    void setToolTitle(const std::string& title);
    // Places the dialog at the page that asks for the tool.
    void placeBeside(const QWidget& page);

    // The place of the chosen tool in the list, 0 where the dialog was cancelled. The property
    // "Tag" holds the same as text, empty for none.
    std::int16_t chosenPosition() const;
    // Whether a tool was deleted, so that places of the list have moved.
    bool hasDeleted() const { return m_deleted || !m_removed.empty(); }
    // The places of tools that went as another copy of the program had deleted them (tool_merge.h).
    const std::vector<std::int16_t>& removedPlaces() const { return m_removed; }

private:
    void buildButtons();
    void buildSortButtons();
    void connectButtons();
    // Sizes the grid and lays the sort buttons over its header.
    void layOut();
    void enableActions(bool enabled);
    // Runs a handler's work inside the error trap.
    template <typename Work>
    void trapped(std::string_view procedure, Work&& work);

    void selectionChanged();
    void dropHeaderFocus();
    void addNewTool();
    void editTool();
    void deleteSelectedTool();
    // Fills the grid with the list as it is now; nothing is selected.
    void showAgain();
    void confirm();
    static QString deletionQuestion(const Tool& tool);
    // Tools that another copy of the program has changed or deleted, too.
    void sayOverruled(const std::vector<std::int16_t>& numbers);
    // Another copy has deleted the chosen tool: another one is to be chosen.
    void chooseAgain(std::int16_t number);

    ToolList& m_tools;
    Registry& m_registry;
    Logger& m_logger;
    StdMessageBox& m_messages;
    ToolGrid* m_grid;
    std::array<SortButton*, 3> m_sort{};
    QPushButton* m_add = nullptr;
    QPushButton* m_edit = nullptr;
    QPushButton* m_delete = nullptr;
    QPushButton* m_ok = nullptr;
    QPushButton* m_cancel = nullptr;
    QTimer m_mouse;
    bool m_deleted = false;
    std::vector<std::int16_t> m_removed;
};

} // namespace torvik
