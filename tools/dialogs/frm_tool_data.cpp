// SPDX-License-Identifier: MIT
#include "tools/dialogs/frm_tool_data.h"

#include "base/error_trap.h"
#include "base/numbers.h"
#include "base/std_message_box.h"
#include "forms/dialog_places.h"
#include "forms/number_box.h"
#include "tools/dialogs/frm_tool_type.h"
#include "tools/dialogs/tool_fault_text.h"
#include "tools/dialogs/type_lists.h"
#include "tools/tool_record.h"
#include "tools/tool_store.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace torvik {
namespace {

constexpr std::string_view form = "frmToolData";
constexpr int widestType = 60; // letters

} // namespace

template <typename Work>
void FrmToolData::trapped(std::string_view procedure, Work&& work) {
    withErrorTrap(m_logger, {procedure, form}, std::forward<Work>(work));
}

FrmToolData::FrmToolData(ToolList& tools, Registry& registry, Logger& logger,
                         StdMessageBox& messages, std::int16_t place, QWidget* parent)
    : QDialog(parent), m_tools(tools), m_registry(registry), m_logger(logger),
      m_messages(messages) {
    setObjectName(QStringLiteral("frmToolData"));
    setProperty(tagProperty, place == 0 ? QString() : QString::number(place));
    setWindowTitle(place == 0 ? tr("Add a new Tool") : tr("Edit Tool Data"));
    buildForm();
    trapped("Form_Load", [&] {
        ToolTypeUserLoad(m_tools, m_registry, m_logger);
        fillTypes();
        if (place != 0)
            fillTool(place);
    });
    OkStatus();
    centreOverMainWindow(*this);
    m_number->setFocus();
    m_number->selectAll();
}

void FrmToolData::buildForm() {
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(dialogMargin, dialogMargin, dialogMargin, dialogMargin);
    grid->setSizeConstraint(QLayout::SetFixedSize);
    m_number = new NumberBox(toolNumberHint);
    m_number->setObjectName(QStringLiteral("txtToolNumber"));
    m_number->setToolTip(tr("The number on the tool holder, 1 to 32767"));
    addRow(*grid, 0, "lblToolNumber", tr("Tool &number:"), m_number);
    m_type = new QComboBox;
    m_type->setObjectName(QStringLiteral("cboToolType"));
    m_type->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_type->setMinimumContentsLength(20);
    m_type->setMaximumWidth(m_type->fontMetrics().averageCharWidth() * widestType);
    m_type->setToolTip(tr("What kind of tool it is"));
    addRow(*grid, 1, "lblToolType", tr("Tool &type:"), m_type);
    m_diameter = new NumberBox(toolDiameterHint);
    m_diameter->setObjectName(QStringLiteral("txtToolDiam"));
    m_diameter->setToolTip(tr("The cutting diameter in millimetres, with a point"));
    addRow(*grid, 2, "lblToolDiam", tr("Tool &diameter (mm):"), m_diameter);
    buildButtons(*grid);
    connect(m_number, &QLineEdit::textChanged, this, &FrmToolData::OkStatus);
    connect(m_diameter, &QLineEdit::textChanged, this, &FrmToolData::OkStatus);
    connect(m_type, &QComboBox::currentIndexChanged, this, &FrmToolData::OkStatus);
}

QLabel* FrmToolData::addRow(QGridLayout& grid, int row, const char* name, const QString& caption,
                            QWidget* control) {
    auto* const label = new QLabel(caption);
    label->setObjectName(QString::fromUtf8(name));
    label->setBuddy(control);
    control->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    control->setAccessibleName(QString(caption).remove(u'&').remove(u':'));
    grid.addWidget(label, row, 0);
    grid.addWidget(control, row, 1);
    return label;
}

void FrmToolData::buildButtons(QGridLayout& grid) {
    m_types = makeDialogButton("cmdToolType", tr("Tool T&ypes…"), tr("Add or remove tool types"));
    m_types->setAutoDefault(false);
    m_types->setMinimumWidth(m_types->sizeHint().width() + dialogMargin);
    m_ok = makeDialogButton("cmdOk", tr("OK"), tr("Take the tool over (Enter)"));
    m_ok->setDefault(true);
    auto* const cancel = makeDialogButton("cmdCancel", tr("Cancel"), tr("Change nothing (Escape)"));
    grid.addWidget(m_types, 1, 2);
    auto* const row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(m_ok);
    row->addWidget(cancel);
    grid.setRowMinimumHeight(3, dialogMargin);
    grid.addLayout(row, 4, 0, 1, 3);
    setTabOrder(m_number, m_type);
    setTabOrder(m_type, m_types);
    setTabOrder(m_types, m_diameter);
    setTabOrder(m_diameter, m_ok);
    setTabOrder(m_ok, cancel);
    connect(m_types, &QPushButton::clicked, this, &FrmToolData::changeTypes);
    connect(m_ok, &QPushButton::clicked, this, &FrmToolData::confirm);
    connect(cancel, &QPushButton::clicked, this, &FrmToolData::reject);
}

void FrmToolData::fillTypes() {
    const QString chosen = m_type->currentText();
    ToolTypeStandardShow(*m_type);
    ToolTypeUserShow(*m_type, m_tools);
    if (!m_ownType.isEmpty() && m_type->findText(m_ownType, Qt::MatchCaseSensitive) < 0)
        m_type->addItem(m_ownType);
    m_type->setCurrentIndex(
        m_type->findText(chosen, Qt::MatchFixedString | Qt::MatchCaseSensitive));
}

void FrmToolData::fillTool(std::int16_t place) {
    const ToolEntry stored = entryOf(m_tools.gudtTools[place]);
    m_ownType = QString::fromStdString(stored.type);
    fillTypes();
    m_number->setText(QString::fromStdString(stored.number));
    m_type->setCurrentIndex(
        m_type->findText(m_ownType, Qt::MatchFixedString | Qt::MatchCaseSensitive));
    m_diameter->setText(QString::fromStdString(stored.diameter));
}

void FrmToolData::OkStatus() {
    trapped("OkStatus", [&] { m_ok->setEnabled(isToolComplete(entry())); });
}

ToolEntry FrmToolData::entry() const {
    return {m_number->text().toStdString(), m_type->currentText().toStdString(),
            m_diameter->text().toStdString()};
}

bool FrmToolData::isConfirmed() const {
    return property(tagProperty).toString() == QLatin1String(tagOk);
}

void FrmToolData::confirm() {
    trapped("cmdOk_Click", [&] {
        const std::int16_t place =
            toInt16(leadingNumber(property(tagProperty).toString().toStdString()));
        const std::optional<ToolFault> fault = toolFault(m_tools, entry(), place);
        if (!fault) {
            setProperty(tagProperty, QString::fromUtf8(tagOk));
            accept();
            return;
        }
        const ToolFaultText text = toolFaultText(*fault, entry());
        m_messages.intStdMsgBox(text.message.toStdString(), styleExclamation,
                                text.title.toStdString());
        NumberBox* const box = text.field == ToolField::number ? m_number : m_diameter;
        box->selectAll();
        box->setFocus();
    });
}

void FrmToolData::changeTypes() {
    trapped("cmdToolType_Click", [&] {
        FrmToolType dialog(m_tools, m_registry, m_logger, m_messages, this);
        dialog.exec();
        activateWindow(); // a message that closed with the dialog may have taken the keyboard along
        if (dialog.isConfirmed())
            ToolTypeUserSave(m_tools, m_registry, m_logger);
        else
            ToolTypeUserLoad(m_tools, m_registry, m_logger);
        fillTypes();
    });
}

void FrmToolData::reject() {
    setProperty(tagProperty, QString::fromUtf8(tagCancel));
    QDialog::reject();
}

void FrmToolData::closeEvent(QCloseEvent* event) {
    event->accept();
    QDialog::reject();
}

} // namespace torvik
