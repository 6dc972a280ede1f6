// SPDX-License-Identifier: MIT
// frmToolType: the standard tool types, the users' types that tools have, and those that no tool
// has. Types are added and the last ones deleted, in memory; whoever opened it stores or reloads
// them. Refuses a type that is there already, in whatever case.
#pragma once

#include "tools/tool_list.h"

#include <QDialog>

#include <string_view>

class QHBoxLayout;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace torvik {

class Logger;
class Registry;
class StdMessageBox;

class FrmToolType : public QDialog {
    Q_OBJECT

public:
    FrmToolType(ToolList& tools, Registry& registry, Logger& logger, StdMessageBox& messages,
                QWidget* parent = nullptr);

    // Whether it was left with OK. The property "Tag" says "Ok" or "Cancel", nothing after the
    // window was closed.
    bool isConfirmed() const;

    void reject() override;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QListWidget* makeList(const char* name, const QString& caption, QHBoxLayout& row);
    void buildLists();
    void buildControls();
    void fillLists();
    // The types in memory.
    void showTypes();
    void listSelected(QListWidget& list);
    void nameChanged();
    void addType();
    void deleteType();
    // Tells the types that will be stored, where they are others than those on show.
    void sayKeptTypes();
    void confirm();
    template <typename Work>
    void trapped(std::string_view procedure, Work&& work);

    ToolList& m_tools;
    Registry& m_registry;
    Logger& m_logger;
    StdMessageBox& m_messages;
    QListWidget* m_standard;
    QListWidget* m_user;
    QListWidget* m_userNew;
    QLineEdit* m_name;
    QPushButton* m_add;
    QPushButton* m_delete;
    QPushButton* m_ok;
};

} // namespace torvik
