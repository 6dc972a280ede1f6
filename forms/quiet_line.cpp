// SPDX-License-Identifier: MIT
#include "forms/quiet_line.h"

#include "forms/form_fields.h"

#include <QGridLayout>
#include <QLabel>
#include <QStyle>

namespace torvik {
namespace {

QLabel* makeWarningSign(const QWidget& line) {
    const int side = line.fontMetrics().height();
    auto* const sign = new QLabel;
    sign->setPixmap(line.style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side));
    sign->setAccessibleName(QuietLine::tr("Warning"));
    sign->hide();
    return sign;
}

} // namespace

QuietLine::QuietLine(const QString& name, int linesKept) : m_layout(new QGridLayout(this)) {
    setObjectName(name);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(4);
    m_layout->setColumnStretch(1, 1);
    setMinimumHeight(linesKept * fontMetrics().lineSpacing());
}

const QuietLine::Row& QuietLine::row(std::size_t place) {
    while (m_rows.size() <= place) {
        const auto count = static_cast<int>(m_rows.size());
        const Row row{makeWarningSign(*this), makeWarning(objectName() + QString::number(count))};
        m_layout->addWidget(row.sign, count, 0, Qt::AlignTop);
        m_layout->addWidget(row.label, count, 1);
        m_layout->setRowStretch(count, 0);
        m_layout->setRowStretch(count + 1, 1); // what is left lies below
        m_rows.push_back(row);
    }
    return m_rows[place];
}

void QuietLine::say(const Texts& texts) {
    QString all;
    for (const Text& text : texts)
        all += (all.isEmpty() ? QString() : QStringLiteral("\n")) + text.text;
    if (all == accessibleName())
        return;
    setAccessibleName(all);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const auto& [sign, label] = row(i);
        showWarning(*label, texts[i].text);
        sign->setVisible(texts[i].tone == Tone::warning);
        if (texts[i].tone == Tone::plain)
            label->setPalette({});
    }
    for (std::size_t i = texts.size(); i < m_rows.size(); ++i) {
        m_rows[i].sign->hide();
        m_rows[i].label->hide();
    }
}

} // namespace torvik
