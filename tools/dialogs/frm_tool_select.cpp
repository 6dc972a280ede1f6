// SPDX-License-Identifier: MIT
#include "tools/dialogs/frm_tool_select.h"

#include "base/error_trap.h"
#include "base/numbers.h"
#include "base/picture.h"
#include "base/std_message_box.h"
#include "forms/dialog_places.h"
#include "forms/help_key.h"
#include "tools/dialogs/frm_tool_data.h"
#include "tools/dialogs/sort_button.h"
#include "tools/dialogs/tool_grid.h"
#include "tools/tool_edits.h"
#include "tools/tool_store.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace torvik {
namespace {

constexpr std::string_view selectForm = "frmToolSelect";
constexpr int focusInterval = 50; // milliseconds

} // namespace

template <typename Work>
void FrmToolSelect::trapped(std::string_view procedure, Work&& work) {
    withErrorTrap(m_logger, {procedure, selectForm}, std::forward<Work>(work));
}

FrmToolSelect::FrmToolSelect(ToolList& tools, Registry& registry, Logger& logger,
                             StdMessageBox& messages, QWidget* parent)
    : QDialog(parent), m_tools(tools), m_registry(registry), m_logger(logger), m_messages(messages),
      m_grid(new ToolGrid) {
    setObjectName(QStringLiteral("frmToolSelect"));
    setProperty(tagProperty, QString());
    setProperty(helpContextProperty, helpTools);
    m_grid->setToolTip(tr("The workshop's tools. Choose one with a click or the arrow keys"));
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(dialogMargin, dialogMargin, dialogMargin, dialogMargin);
    layout->setSpacing(dialogMargin);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(m_grid, 0, Qt::AlignTop);
    buildButtons();
    buildSortButtons();
    connectButtons();
    ToolDataShow(*m_grid, m_tools, m_logger);
    enableActions(false);
    layOut();
    m_grid->setFocus();
}

void FrmToolSelect::buildButtons() {
    m_ok = makeDialogButton("cmdOk", tr("OK"), tr("Use the selected tool and store the tools"));
    m_ok->setDefault(true);
    m_cancel = makeDialogButton("cmdCancel", tr("Cancel"), tr("Choose no tool (Escape)"));
    m_add = makeDialogButton("cmdAdd", tr("&Add…"), tr("Add a tool to the list"));
    m_edit = makeDialogButton("cmdEdit", tr("&Edit…"), tr("Change the selected tool (F2)"));
    m_delete =
        makeDialogButton("cmdDelete", tr("&Delete…"), tr("Take the selected tool out (Delete)"));
    auto* const column = new QVBoxLayout;
    for (QPushButton* const button : {m_add, m_edit, m_delete})
        column->addWidget(button);
    column->addStretch(1);
    for (QPushButton* const button : {m_ok, m_cancel})
        column->addWidget(button);
    static_cast<QHBoxLayout*>(layout())->addLayout(column);
}

void FrmToolSelect::buildSortButtons() {
    m_mouse.setObjectName(QStringLiteral("tmrMouse"));
    m_mouse.setParent(this);
    m_mouse.setInterval(focusInterval);
    connect(&m_mouse, &QTimer::timeout, this, &FrmToolSelect::dropHeaderFocus);
    for (int column = 0; column < shownColumns; ++column) {
        auto* const button = new SortButton(*m_grid, column);
        m_sort[static_cast<std::size_t>(column)] = button;
        connect(button, &SortButton::clicked, this, [this, column] {
            if (m_grid->gintToolRows >= 2)
                GridSort(*m_grid, static_cast<std::int16_t>(column), m_logger);
        });
        connect(button, &SortButton::focused, this, [this, column] {
            m_mouse.setProperty(tagProperty, column);
            m_mouse.start();
        });
    }
}

void FrmToolSelect::connectButtons() {
    connect(m_grid, &ToolGrid::itemSelectionChanged, this, &FrmToolSelect::selectionChanged);
    connect(m_grid, &ToolGrid::doubleClicked, m_ok, &QPushButton::click);
    connect(m_grid, &ToolGrid::editWanted, m_edit, &QPushButton::click);
    connect(m_grid, &ToolGrid::deletionWanted, m_delete, &QPushButton::click);
    connect(m_add, &QPushButton::clicked, this, &FrmToolSelect::addNewTool);
    connect(m_edit, &QPushButton::clicked, this, &FrmToolSelect::editTool);
    connect(m_delete, &QPushButton::clicked, this, &FrmToolSelect::deleteSelectedTool);
    connect(m_ok, &QPushButton::clicked, this, &FrmToolSelect::confirm);
    connect(m_cancel, &QPushButton::clicked, this, &FrmToolSelect::reject);
}

void FrmToolSelect::setToolTitle(const std::string& title) {
    setWindowTitle(tr("Select the Tool for the %1").arg(QString::fromStdString(title)));
}

void FrmToolSelect::placeBeside(const QWidget& page) {
    placeOnScreen(*this, page.mapToGlobal(QPoint(page.width(), m_ok->sizeHint().height())));
}

std::int16_t FrmToolSelect::chosenPosition() const {
    return toInt16(leadingNumber(property(tagProperty).toString().toStdString()));
}

void FrmToolSelect::layOut() {
    std::array<int, shownColumns> widths{};
    std::ranges::transform(m_sort, widths.begin(), [](const SortButton* button) {
        return button->minimumSizeHint().width();
    });
    m_grid->fitSize(widths);
    for (SortButton* const button : m_sort)
        button->cover();
}

void FrmToolSelect::enableActions(bool enabled) {
    for (QPushButton* const button : {m_ok, m_edit, m_delete})
        button->setEnabled(enabled);
}

void FrmToolSelect::selectionChanged() {
    trapped("grdTools_SelChange", [&] {
        const std::int16_t place = m_grid->placeAt(m_grid->selectedRow());
        enableActions(place != 0);
        m_ok->setEnabled(isInList(m_tools, place));
    });
}

void FrmToolSelect::dropHeaderFocus() {
    const auto column = static_cast<std::size_t>(m_mouse.property(tagProperty).toInt());
    SortButton* const button = m_sort.at(column);
    if (button->isDown())
        return;
    m_mouse.stop();
    if (button->hasFocus())
        m_grid->setFocus();
}

void FrmToolSelect::addNewTool() {
    trapped("cmdAdd_Click", [&] {
        FrmToolData dialog(m_tools, m_registry, m_logger, m_messages, 0, this);
        dialog.exec();
        if (!dialog.isConfirmed())
            return;
        const ToolEntry entry = dialog.entry();
        addTool(m_tools, toolOf(entry));
        const std::int16_t place = m_tools.gintToolCount;
        const int row = m_grid->appendTool(QString::fromStdString(entry.number),
                                           m_tools.gudtTools[place], place);
        layOut();
        m_grid->selectRow(row);
        m_grid->scrollToItem(m_grid->item(row, columnNumber), QAbstractItemView::PositionAtBottom);
        m_grid->setFocus();
        enableActions(true);
    });
}

void FrmToolSelect::editTool() {
    trapped("cmdEdit_Click", [&] {
        const int row = m_grid->selectedRow();
        const std::int16_t place = m_grid->placeAt(row);
        FrmToolData dialog(m_tools, m_registry, m_logger, m_messages, place, this);
        dialog.exec();
        if (dialog.isConfirmed()) {
            const ToolEntry entry = dialog.entry();
            Tool& tool = m_tools.gudtTools[place];
            tool = toolOf(entry, tool.sngReserved);
            m_grid->setTool(row, QString::fromStdString(entry.number), tool);
        }
        m_grid->selectRow(row);
        selectionChanged(); // a record that could not be read may be a tool now
        m_grid->setFocus();
    });
}

QString FrmToolSelect::deletionQuestion(const Tool& tool) {
    const QString ask = tr("Are you sure you want to delete:") + u'\n';
    if (tool.strUnreadable)
        return ask + tr("The tool that cannot be read\n(%1)?\n")
                         .arg(tool.strUnreadable->empty()
                                  ? tr("nothing is stored")
                                  : QString::fromStdString(*tool.strUnreadable));
    return ask + tr("Tool no. %1\n(%2  %3 mm)?\n")
                     .arg(QString::number(tool.intNumber), QString::fromStdString(tool.strType),
                          QString::fromStdString(formatFixed(tool.sngDiameter, 3)));
}

void FrmToolSelect::deleteSelectedTool() {
    trapped("cmdDelete_Click", [&] {
        const int row = m_grid->selectedRow();
        const std::int16_t place = m_grid->placeAt(row);
        const int answer =
            m_messages.intStdMsgBox(deletionQuestion(m_tools.gudtTools[place]).toStdString(),
                                    styleQuestionDefaultNo, tr("Tool Deletion").toStdString());
        if (answer != buttonYes) {
            m_grid->selectRow(row);
            m_grid->setFocus();
            return;
        }
        deleteTool(m_tools, place);
        m_deleted = true;
        showAgain();
        m_ok->setEnabled(true); // stores the shorter list, though no tool is chosen
    });
}

void FrmToolSelect::showAgain() {
    ToolDataShow(*m_grid, m_tools, m_logger);
    layOut();
    enableActions(false);
    m_grid->setFocus();
}

void FrmToolSelect::sayOverruled(const std::vector<std::int16_t>& numbers) {
    QStringList texts;
    for (const std::int16_t number : numbers)
        texts.append(QString::number(number));
    if (!numbers.empty())
        m_messages.intStdMsgBox(tr("Another copy of Torvik has changed or deleted the same tools "
                                   "meanwhile:\n"
                                   "Tool no. %1\nThey are saved as they are in this copy.")
                                    .arg(texts.join(QStringLiteral(", ")))
                                    .toStdString(),
                                styleExclamation, usualTitle);
}

void FrmToolSelect::chooseAgain(std::int16_t number) {
    showAgain();
    m_messages.intStdMsgBox(tr("Another copy of Torvik has deleted tool no. %1 meanwhile.\n"
                               "Please choose another tool.")
                                .arg(number)
                                .toStdString(),
                            styleExclamation, usualTitle);
}

void FrmToolSelect::confirm() {
    trapped("cmdOk_Click", [&] {
        const std::int16_t chosen = m_grid->placeAt(m_grid->selectedRow());
        const std::int16_t number =
            chosen == 0 ? std::int16_t{0} : m_tools.gudtTools[chosen].intNumber;
        const TakenOver taken = ToolDataSave(m_tools, m_registry, m_logger);
        m_removed.insert(m_removed.end(), taken.removed.begin(), taken.removed.end());
        sayOverruled(taken.overruled);
        const std::int16_t place = placeAfter(chosen, taken.removed);
        if (chosen != 0 && place == 0) {
            chooseAgain(number);
            return;
        }
        setProperty(tagProperty, place == 0 ? QString() : QString::number(place));
        accept();
    });
}

} // namespace torvik
