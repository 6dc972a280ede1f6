// SPDX-License-Identifier: MIT
#include "wizard/output/finding_list.h"

#include "forms/form_fields.h"
#include "forms/text_button.h"
#include "wizard/output/finding_rows.h"

#include <QLabel>
#include <QVBoxLayout>

namespace torvik {
namespace {

constexpr int findingGap = 4; // pixels

// Where a line is named it is underlined, as what leads somewhere is.
QLabel* labelOf(const check::FindingRow& row, bool leads, QWidget* parent) {
    QLabel* const label = makeWarning({});
    label->setParent(parent);
    showWarning(*label, textOf(row));
    if (row.level() < check::Level::wrong)
        label->setPalette({});
    if (leads) {
        label->setTextFormat(Qt::RichText);
        label->setText(
            QStringLiteral("<u>%1</u>%2").arg(whereOf(row), saidOf(row).toHtmlEscaped()));
    }
    return label;
}

QWidget* focusBefore(const QWidget& control) {
    QWidget* before = control.previousInFocusChain();
    while (before != &control && before->focusPolicy() == Qt::NoFocus)
        before = before->previousInFocusChain();
    return before;
}

} // namespace

FindingList::FindingList(QWidget* parent) : QWidget(parent), m_place(new QVBoxLayout(this)) {
    setObjectName(QStringLiteral("lstFindings"));
    m_place->setContentsMargins(0, 0, 0, 0);
}

QWidget* FindingList::makeRow(const check::FindingRow& row, bool leads) {
    QLabel* const label = labelOf(row, leads, m_rows);
    if (!leads)
        return label;
    auto* const button = new TextButton(label, textOf(row));
    button->setObjectName(QStringLiteral("cmdFinding"));
    button->setToolTip(tr("Look at this line in the piece (Enter)"));
    connect(button, &QPushButton::clicked, this,
            [this, line = row.line] { emit lineChosen(line); });
    return button;
}

void FindingList::setRows(const std::vector<check::FindingRow>& rows, bool canLook, QWidget& next) {
    delete m_rows;
    m_rows = new QWidget;
    auto* const column = new QVBoxLayout(m_rows);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(findingGap);
    m_place->addWidget(m_rows);
    for (const check::FindingRow& row : rows) {
        const bool leads = canLook && row.line > 0;
        QWidget* const shown = makeRow(row, leads);
        column->addWidget(shown);
        if (leads)
            setTabOrder(focusBefore(next), shown);
    }
    setVisible(!rows.empty());
}

} // namespace torvik
