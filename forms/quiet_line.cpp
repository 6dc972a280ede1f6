// SPDX-License-Identifier: MIT
#include "forms/quiet_line.h"

#include "forms/form_fields.h"

#include <QLabel>
#include <QVBoxLayout>

namespace torvik {

QuietLine::QuietLine(const QString& name, int linesKept) : m_layout(new QVBoxLayout(this)) {
    setObjectName(name);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(4);
    m_layout->setAlignment(Qt::AlignTop);
    setMinimumHeight(linesKept * fontMetrics().lineSpacing());
}

QLabel& QuietLine::label(std::size_t place) {
    while (m_labels.size() <= place) {
        m_labels.push_back(makeWarning(objectName() + QString::number(m_labels.size())));
        m_layout->addWidget(m_labels.back());
    }
    return *m_labels[place];
}

void QuietLine::say(const Texts& texts) {
    QString all;
    for (const Text& text : texts)
        all += (all.isEmpty() ? QString() : QStringLiteral("\n")) + text.text;
    if (all == accessibleName())
        return;
    setAccessibleName(all);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        showWarning(label(i), texts[i].text);
        if (texts[i].tone == Tone::plain)
            label(i).setPalette({});
    }
    for (std::size_t i = texts.size(); i < m_labels.size(); ++i)
        m_labels[i]->hide();
}

} // namespace torvik
