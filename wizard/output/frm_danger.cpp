// SPDX-License-Identifier: MIT
#include "wizard/output/frm_danger.h"

#include "forms/dialog_places.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace torvik {
namespace {

constexpr int textWidth = 460;  // pixels
constexpr int iconWidth = 32;   // pixels
constexpr int betweenRows = 10; // pixels

QLabel* wrapped(const QString& text) {
    auto* const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFixedWidth(textWidth);
    return label;
}

} // namespace

FrmDanger::FrmDanger(const QStringList& findings, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmDanger"));
    setWindowTitle(tr("Before the program is written"));
    auto* const texts = new QVBoxLayout;
    texts->setSpacing(betweenRows);
    auto* const question =
        wrapped(tr("This program is dangerous, or does not do what you asked for:"));
    QFont bold = question->font();
    bold.setBold(true);
    question->setFont(bold);
    texts->addWidget(question);
    auto* const found = wrapped(findings.join(QStringLiteral("\n\n")));
    found->setObjectName(QStringLiteral("lblDanger"));
    texts->addWidget(found);
    auto* const icon = new QLabel;
    icon->setAccessibleName(tr("Warning"));
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(iconWidth));
    auto* const row = new QHBoxLayout;
    row->setSpacing(dialogMargin);
    row->addWidget(icon, 0, Qt::AlignTop);
    row->addLayout(texts, 1);

    auto* const back = makeDialogButton("cmdGoBack", tr("&Go back"),
                                        tr("Change the answers first; nothing is written"));
    auto* const write =
        makeDialogButton("cmdWrite", tr("&Write all the same"), tr("Write the program as it is"));
    back->setDefault(true);
    write->setAutoDefault(false);
    connect(back, &QPushButton::clicked, this, &QDialog::reject);
    connect(write, &QPushButton::clicked, this, &QDialog::accept);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(back);
    buttons->addWidget(write);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(dialogMargin, dialogMargin, dialogMargin, dialogMargin);
    column->setSpacing(dialogMargin);
    column->addLayout(row);
    column->addLayout(buttons);
    column->setSizeConstraint(QLayout::SetFixedSize);
    back->setFocus();
}

} // namespace torvik
