// SPDX-License-Identifier: MIT
#include "wizard/frm_output.h"

#include "gcode/dialects.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolTip>
#include <QVBoxLayout>

namespace torvik {
namespace {

QString text(std::string_view view) {
    return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
}

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

} // namespace

FrmOutput::FrmOutput(const Dialect& dialect, QWidget* parent) : QDialog(parent) {
    setObjectName(QStringLiteral("frmOutput"));
    setWindowTitle(QStringLiteral("%1 Program Number").arg(text(dialect.name)));
    auto* const prompt =
        new QLabel(QStringLiteral("Please enter the number that will identify this piece to %1")
                       .arg(text(dialect.name)));
    prompt->setObjectName(QStringLiteral("lblPrompt"));
    auto* const prefix = new QLabel(text(dialect.diskettePrefix));
    prefix->setObjectName(QStringLiteral("lblPrefix"));
    m_number = new QLineEdit;
    m_number->setObjectName(QStringLiteral("txtNumber"));
    m_number->setAccessibleName(prompt->text());
    m_number->setToolTip(tr("A whole number from 1 to 32767"));
    m_number->installEventFilter(this);
    prompt->setBuddy(m_number);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setObjectName(QStringLiteral("cmdOk"));
    m_ok->setEnabled(false);
    buttons->button(QDialogButtonBox::Cancel)->setObjectName(QStringLiteral("cmdCancel"));
    connect(m_number, &QLineEdit::textChanged, this,
            [this](const QString& number) { m_ok->setEnabled(!number.isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        m_result = m_number->text();
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

bool FrmOutput::eventFilter(QObject* watched, QEvent* event) {
    if (watched != m_number || event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const auto* const key = static_cast<QKeyEvent*>(event);
    if (key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))
        return false;
    const QString typed = key->text();
    if (typed.isEmpty() || typed[0] < u' ' || typed[0] == QChar(0x7F) || isDigit(typed[0]))
        return false;
    QToolTip::showText(m_number->mapToGlobal(QPoint(0, m_number->height())), tr("Digits only"),
                       m_number);
    return true;
}

} // namespace torvik
