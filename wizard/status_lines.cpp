// SPDX-License-Identifier: MIT
#include "wizard/status_lines.h"

#include "answers/program_folder.h"
#include "base/files.h"
#include "tools/settings_file_reader.h"

#include <QEvent>
#include <QLabel>
#include <QStatusBar>
#include <QVBoxLayout>

#include <algorithm>

namespace torvik {

namespace {

void showText(QLabel& line, bool visible, const QString& text) {
    line.setText(text);
    line.setToolTip(text);
    line.setVisible(visible);
}

} // namespace

StatusLines::StatusLines(QStatusBar& bar) : m_bar(bar) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_toolsUnsaved = addText(QStringLiteral("lblToolsUnsaved"));
    m_answersUnkept = addText(QStringLiteral("lblAnswersUnkept"));
    bar.setObjectName(QStringLiteral("staMain"));
    bar.setSizeGripEnabled(false);
    bar.addPermanentWidget(this, 1); // which no passing message covers
    bar.hide();
}

QLabel* StatusLines::addText(const QString& name) {
    auto* const line = new QLabel;
    line->setObjectName(name);
    line->setTextFormat(Qt::PlainText);
    line->setMinimumWidth(1); // a long path does not widen the window
    line->setMargin(4);
    addLine(*line);
    return line;
}

void StatusLines::addLine(QWidget& line) {
    line.hide();
    line.installEventFilter(this);
    layout()->addWidget(&line);
}

void StatusLines::showToolsUnsaved(bool unsaved) {
    showText(*m_toolsUnsaved, unsaved,
             tr("The tools could not be saved in %1: they last until Torvik ends")
                 .arg(QString::fromStdString(registryPlace())));
}

void StatusLines::showAnswersUnkept(bool unkept) {
    showText(*m_answersUnkept, unkept,
             tr("Your answers could not be kept in %1: they last until Torvik ends")
                 .arg(QString::fromStdString(utf8FromPath(savedSettingsFolder()))));
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
