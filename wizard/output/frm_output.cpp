// SPDX-License-Identifier: MIT
#include "wizard/output/frm_output.h"

#include "forms/dialog_places.h"
#include "forms/number_box.h"
#include "gcode/dialects.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace torvik {

FrmOutput::FrmOutput(const Dialect& dialect, QWidget* parent)
    : QDialog(parent), m_number(new NumberBox(toolNumberHint)) {
    setObjectName(QStringLiteral("frmOutput"));
    setWindowTitle(tr("%1 Program Number").arg(QString::fromUtf8(dialect.name)));
    auto* const prompt =
        new QLabel(tr("Please enter the number that will identify this piece to %1")
                       .arg(QString::fromUtf8(dialect.name)));
    prompt->setObjectName(QStringLiteral("lblPrompt"));
    prompt->setWordWrap(true);
    constexpr int signsBesideTitle = 140; // pixels that a window manager may take
    prompt->setMinimumWidth(fontMetrics().horizontalAdvance(windowTitle()) + signsBesideTitle);
    auto* const prefix = new QLabel(QString::fromUtf8(dialect.diskettePrefix));
    prefix->setObjectName(QStringLiteral("lblPrefix"));
    m_number->setObjectName(QStringLiteral("txtNumber"));
    m_number->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_number->setAccessibleName(prompt->text());
    m_number->setToolTip(tr("A whole number from 1 to 32767"));
    prompt->setBuddy(m_number);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setObjectName(QStringLiteral("cmdOk"));
    m_ok->setEnabled(false);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    connect(m_number, &QLineEdit::textChanged, this,
            [this](const QString& number) { m_ok->setEnabled(!number.isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        setProperty(tagProperty, m_number->text());
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const row = new QHBoxLayout;
    row->addWidget(prefix);
    row->addWidget(m_number, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(prompt);
    layout->addLayout(row);
    layout->addWidget(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    m_number->setFocus();
}

std::string FrmOutput::tag() const {
    return property(tagProperty).toString().toStdString();
}

} // namespace torvik
