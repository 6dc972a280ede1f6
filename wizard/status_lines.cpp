// SPDX-License-Identifier: MIT
#include "wizard/status_lines.h"

#include "tools/settings_file_reader.h"

#include <QEvent>
#include <QLabel>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>

namespace torvik {

StatusLines::StatusLines(QStatusBar& bar) : m_bar(bar), m_toolsUnsaved(new QLabel) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_toolsUnsaved->setObjectName(QStringLiteral("lblToolsUnsaved"));
    m_toolsUnsaved->setTextFormat(Qt::PlainText);
    m_toolsUnsaved->setMinimumWidth(1); // a long path does not widen the window
    m_toolsUnsaved->setMargin(4);
    addLine(*m_toolsUnsaved);
    bar.setObjectName(QStringLiteral("staMain"));
    bar.setSizeGripEnabled(false);
    bar.addPermanentWidget(this, 1); // which no passing message covers
    bar.hide();
}

void StatusLines::addLine(QWidget& line) {
    line.hide();
    line.installEventFilter(this);
    layout()->addWidget(&line);
}

void StatusLines::showToolsUnsaved(bool unsaved) {
    m_toolsUnsaved->setText(tr("The tools could not be saved in %1: they last until Torvik ends")
                                .arg(QString::fromStdString(registryPlace())));
    m_toolsUnsaved->setToolTip(m_toolsUnsaved->text());
    m_toolsUnsaved->setVisible(unsaved);
}

bool StatusLines::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent) {
        const auto lines = children();
        m_bar.setVisible(std::any_of(lines.begin(), lines.end(), [](const QObject* child) {
            const auto* const line = qobject_cast<const QWidget*>(child);
            return line != nullptr && !line->isHidden();
        }));
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace torvik
