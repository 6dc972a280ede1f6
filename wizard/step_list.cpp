// SPDX-License-Identifier: MIT
#include "wizard/step_list.h"

#include "forms/spoken_role.h"

#include <QLabel>
#include <QVBoxLayout>

namespace torvik {
namespace {

QStringList stepNames() {
    return {StepList::tr("Open a drawing"), StepList::tr("Heights"),     StepList::tr("Pens"),
            StepList::tr("Order"),          StepList::tr("Job details"), StepList::tr("Output")};
}

} // namespace

StepList::StepList(QWidget* parent) : QFrame(parent) {
    setObjectName(QStringLiteral("lstSteps"));
    setSpokenRole(*this, QAccessible::List);
    setAccessibleName(tr("Steps"));
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    const QStringList names = stepNames();
    for (int i = 0; i < stepCount; ++i) {
        auto* const label = new QLabel(tr("%1  %2").arg(i + 1).arg(names[i]), this);
        label->setObjectName(QStringLiteral("lblStep%1").arg(i + 1));
        setSpokenRole(*label, QAccessible::ListItem);
        label->setContentsMargins(8, 5, 8, 5);
        label->setAutoFillBackground(true);
        layout->addWidget(label);
        m_labels[static_cast<std::size_t>(i)] = label;
    }
    keepRoomForBold();
    showStep(1);
}

// So that nothing moves from step to step.
void StepList::keepRoomForBold() {
    QFont bold = font();
    bold.setBold(true);
    for (QLabel* const label : m_labels)
        label->setFont(bold);
    setMinimumWidth(minimumSizeHint().width());
}

void StepList::showStep(int step) {
    const QStringList names = stepNames();
    for (int i = 0; i < stepCount; ++i) {
        QLabel* const label = m_labels[static_cast<std::size_t>(i)];
        const bool current = i + 1 == step;
        label->setBackgroundRole(current ? QPalette::Highlight : QPalette::Window);
        label->setForegroundRole(current ? QPalette::HighlightedText : QPalette::WindowText);
        QFont font = this->font();
        font.setBold(current);
        label->setFont(font);
        const QString name = tr("%1 %2").arg(i + 1).arg(names[i]);
        label->setAccessibleName(current ? tr("%1, current step").arg(name) : name);
    }
}

} // namespace torvik
