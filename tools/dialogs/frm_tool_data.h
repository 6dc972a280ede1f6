// SPDX-License-Identifier: MIT
// frmToolData: number, type and diameter (mm) of one tool, new or edited. Refuses a number, or a
// pair of type and diameter, that another tool has, and what cannot be stored. It changes no tool:
// whoever opened it takes the entry.
#pragma once

#include "tools/tool_entry.h"

#include <QDialog>

#include <string_view>

class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace torvik {

class NumberBox;
class Logger;
class Registry;
class StdMessageBox;

class FrmToolData : public QDialog {
    Q_OBJECT

public:
    // Opens on the tool at the place, or on an empty form for place 0.
    FrmToolData(ToolList& tools, Registry& registry, Logger& logger, StdMessageBox& messages,
                std::int16_t place, QWidget* parent = nullptr);

    // Whether it was left with OK. The property "Tag" says "Ok" or "Cancel"; before, and after the
    // window was closed, it holds the edited tool's place, empty for a new tool.
    bool isConfirmed() const;
    ToolEntry entry() const;

    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildForm();
    QLabel* addRow(QGridLayout& grid, int row, const char* name, const QString& caption,
                   QWidget* control);
    void buildButtons(QGridLayout& grid);
    void fillTypes();
    void fillTool(std::int16_t place);
    // Enables cmdOk where the entry can be checked.
    void OkStatus();
    void confirm();
    void changeTypes();
    template <typename Work>
    void trapped(std::string_view procedure, Work&& work);

    ToolList& m_tools;
    Registry& m_registry;
    Logger& m_logger;
    StdMessageBox& m_messages;
    QString m_ownType; // of the edited tool; it stays on offer though no list has it
    NumberBox* m_number;
    QComboBox* m_type;
    NumberBox* m_diameter;
    QPushButton* m_types;
    QPushButton* m_ok;
};

} // namespace torvik
