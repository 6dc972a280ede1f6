// SPDX-License-Identifier: MIT
#include "tools/dialogs/frm_tool_type.h"

#include "base/error_trap.h"
#include "base/numbers.h"
#include "base/std_message_box.h"
#include "base/text.h"
#include "forms/comment_box.h"
#include "forms/dialog_places.h"
#include "tools/dialogs/type_lists.h"
#include "tools/tool_edits.h"
#include "tools/tool_store.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

namespace torvik {
namespace {

constexpr std::string_view typeForm = "frmToolType";

class TypeList : public QListWidget {
protected:
    void focusInEvent(QFocusEvent* event) override {
        QListWidget::focusInEvent(event);
        // The library makes the first item current but not selected; an arrow key would pass it.
        if (selectedItems().isEmpty())
            selectionModel()->clearCurrentIndex();
    }
};

void select(QListWidget& list, int row) {
    if (row < 0) {
        list.selectionModel()->clear();
        return;
    }
    list.setCurrentRow(row, QItemSelectionModel::ClearAndSelect);
    list.scrollToItem(list.item(row));
}

} // namespace

template <typename Work>
void FrmToolType::trapped(std::string_view procedure, Work&& work) {
    withErrorTrap(m_logger, {procedure, typeForm}, std::forward<Work>(work));
}

FrmToolType::FrmToolType(ToolList& tools, Registry& registry, Logger& logger,
                         StdMessageBox& messages, QWidget* parent)
    : QDialog(parent), m_tools(tools), m_registry(registry), m_logger(logger),
      m_messages(messages) {
    setObjectName(QStringLiteral("frmToolType"));
    setProperty(tagProperty, QString());
    setWindowTitle(tr("Add or remove Tool Types"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(dialogMargin, dialogMargin, dialogMargin, dialogMargin);
    layout->setSpacing(dialogMargin);
    buildLists();
    buildControls();
    trapped("Form_Load", [&] { fillLists(); });
    centreOverMainWindow(*this);
    m_name->setFocus();
}

void FrmToolType::buildLists() {
    auto* const row = new QHBoxLayout;
    row->setSpacing(dialogMargin);
    m_standard = makeList("lstTypeStandard", tr("&Standard types:"), *row);
    m_user = makeList("lstTypeUser", tr("Added types in &use:"), *row);
    m_userNew = makeList("lstTypeUserNew", tr("Added types &not in use:"), *row);
    m_standard->setToolTip(tr("Every workshop has these"));
    m_user->setToolTip(tr("Tools have these types, so that they cannot be deleted"));
    m_userNew->setToolTip(tr("No tool has these types; select one to delete it"));
    static_cast<QVBoxLayout*>(layout())->addLayout(row, 1);
}

QListWidget* FrmToolType::makeList(const char* name, const QString& caption, QHBoxLayout& row) {
    auto* const list = new TypeList;
    list->setObjectName(QString::fromUtf8(name));
    list->setAccessibleName(QString(caption).remove(u'&').remove(u':'));
    auto* const label = new QLabel(caption);
    label->setBuddy(list);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignBottom);
    auto* const column = new QVBoxLayout;
    column->setSpacing(dialogMargin / 3);
    column->addWidget(label);
    column->addWidget(list, 1);
    row.addLayout(column, 1);
    connect(list, &QListWidget::itemSelectionChanged, this, [this, list] { listSelected(*list); });
    return list;
}

void FrmToolType::buildControls() {
    m_name = new QLineEdit;
    m_name->setObjectName(QStringLiteral("txtNewType"));
    m_name->setAccessibleName(tr("New type"));
    m_name->setToolTip(tr("The name of a type that is in none of the lists"));
    auto* const label = new QLabel(tr("New t&ype:"));
    label->setObjectName(QStringLiteral("lblToolType"));
    label->setBuddy(m_name);
    m_add = makeDialogButton("cmdAdd", tr("&Add"), tr("Add the new type"));
    m_delete = makeDialogButton("cmdDelete", tr("&Delete"), tr("Delete the type not in use"));
    m_add->setEnabled(false);
    m_delete->setEnabled(false);
    m_ok = makeDialogButton("cmdOk", tr("OK"), tr("Store the types"));
    m_ok->setDefault(true);
    auto* const cancel =
        makeDialogButton("cmdCancel", tr("Cancel"), tr("Leave the types as they were (Escape)"));
    auto* const edits = new QHBoxLayout;
    for (QWidget* const widget : std::initializer_list<QWidget*>{label, m_name, m_add, m_delete})
        edits->addWidget(widget);
    auto* const ends = new QHBoxLayout;
    ends->addStretch(1);
    ends->addWidget(m_ok);
    ends->addWidget(cancel);
    auto* const all = static_cast<QVBoxLayout*>(layout());
    all->addLayout(edits);
    all->addLayout(ends);
    keepCommentWhole(*m_name);
    connect(m_name, &QLineEdit::textChanged, this, &FrmToolType::nameChanged);
    connect(m_add, &QPushButton::clicked, this, &FrmToolType::addType);
    connect(m_delete, &QPushButton::clicked, this, &FrmToolType::deleteType);
    connect(m_ok, &QPushButton::clicked, this, &FrmToolType::confirm);
    connect(cancel, &QPushButton::clicked, this, &FrmToolType::reject);
}

void FrmToolType::fillLists() {
    ToolTypeUserLoad(m_tools, m_registry, m_logger);
    showTypes();
}

void FrmToolType::showTypes() {
    ToolTypeStandardShow(*m_standard);
    m_user->clear();
    m_userNew->clear();
    ToolTypeUserShow(*m_user, m_tools);
    for (int row = m_user->count() - 1; row >= 0; --row)
        if (!isTypeInUse(m_tools, m_user->item(row)->text().toStdString()))
            m_userNew->addItem(m_user->takeItem(row));
}

void FrmToolType::listSelected(QListWidget& list) {
    trapped("lstType_Click", [&] {
        if (!list.selectedItems().isEmpty())
            for (QListWidget* const other : {m_standard, m_user, m_userNew})
                if (other != &list)
                    select(*other, -1);
        m_delete->setEnabled(!m_userNew->selectedItems().isEmpty());
    });
}

void FrmToolType::nameChanged() {
    trapped("txtNewType_Change", [&] {
        const std::string typed = m_name->text().toStdString();
        const std::string name(trimBlanks(typed));
        bool isKnown = false;
        if (!name.empty()) {
            const QString upper = QString::fromStdString(name).toUpper();
            for (QListWidget* const list : {m_standard, m_user, m_userNew}) {
                const int row = intMatchRow(*list, upper);
                select(*list, row);
                isKnown = isKnown || row >= 0;
            }
            if (isKnown) {
                m_name->selectAll();
                m_name->setFocus();
            }
        }
        m_add->setEnabled(!name.empty() && !isKnown);
        // Enter adds what was typed before it closes the dialog.
        (m_add->isEnabled() ? m_add : m_ok)->setDefault(true);
    });
}

void FrmToolType::addType() {
    trapped("cmdAdd_Click", [&] {
        const QString name = m_name->text();
        if (name.toStdString().size() > Registry::maxValueBytes) {
            m_messages.intStdMsgBox(
                tr("The tool type is too long to be stored\nPlease enter a shorter name")
                    .toStdString(),
                styleExclamation, tr("Tool type").toStdString());
            m_name->selectAll();
            m_name->setFocus();
            return;
        }
        addUserType(m_tools, name.toStdString());
        auto* const item = new QListWidgetItem(name, m_userNew);
        item->setData(Qt::UserRole, m_tools.gintUserToolTypeCount);
        select(*m_userNew, m_userNew->count() - 1);
        m_name->clear();
        m_name->setFocus();
    });
}

void FrmToolType::deleteType() {
    trapped("cmdDelete_Click", [&] {
        const QList<QListWidgetItem*> selected = m_userNew->selectedItems();
        if (selected.isEmpty())
            return;
        const int place = selected.first()->data(Qt::UserRole).toInt();
        delete selected.first();
        select(*m_userNew, -1); // the library selects the item that took the place
        m_userNew->setFocus();
        deleteUserType(m_tools, toInt16(place));
    });
}

// A deletion takes the place that the item had when it was listed, which may be another type's by
// now.
void FrmToolType::sayKeptTypes() {
    QStringList shown;
    for (const QListWidget* const list : {m_user, m_userNew})
        for (int row = 0; row < list->count(); ++row)
            shown.append(list->item(row)->text());
    QStringList kept;
    for (int place = 1; place <= m_tools.gintUserToolTypeCount; ++place)
        kept.append(QString::fromStdString(m_tools.gstrUserToolTypes[place]));
    shown.sort();
    kept.sort();
    if (shown == kept)
        return;
    showTypes();
    m_messages.intStdMsgBox(
        (tr("Other types were deleted than those that were chosen. These are kept now:") + u'\n' +
         (kept.isEmpty() ? tr("(none)") : kept.join(u'\n')))
            .toStdString(),
        styleExclamation, tr("Tool type").toStdString());
}

void FrmToolType::confirm() {
    trapped("cmdOk_Click", [&] {
        sayKeptTypes();
        setProperty(tagProperty, QString::fromUtf8(tagOk));
        accept();
    });
}

bool FrmToolType::isConfirmed() const {
    return property(tagProperty).toString() == QLatin1String(tagOk);
}

void FrmToolType::reject() {
    setProperty(tagProperty, QString::fromUtf8(tagCancel));
    QDialog::reject();
}

void FrmToolType::closeEvent(QCloseEvent* event) {
    event->accept();
    QDialog::reject();
}

} // namespace torvik
