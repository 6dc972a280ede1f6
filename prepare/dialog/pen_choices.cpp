// SPDX-License-Identifier: MIT
#include "prepare/dialog/pen_choices.h"

#include "prepare/dialog/measure_box.h"
#include "prepare/dialog/pen_colour.h"

#include <QComboBox>
#include <QMenu>
#include <QSignalBlocker>
#include <QToolButton>

namespace torvik {
namespace {

constexpr double usualDiameter = 3;

QString numbered(const char* name, int row) {
    return QString::fromUtf8(name) + QString::number(row);
}

} // namespace

PenChoices::PenChoices(int row, const SourcePen& pen, const QString& name,
                       const std::vector<LibraryTool>& tools)
    : m_pen(new QComboBox), m_run(new QComboBox),
      m_tool(new MeasureBox(numbered("txtTool", row), {0.05, 100, 0.5, 3}, usualDiameter,
                            QStringLiteral("mm"))),
      m_library(new QToolButton) {
    buildPen(row, pen, name);
    m_run->setObjectName(numbered("cboRun", row));
    m_run->setAccessibleName(tr("Where the tool runs for %1").arg(name));
    m_run->setToolTip(tr("On the line: the cut is as wide as the tool, half of it on each side.\n"
                         "Outside: the part keeps its size. Inside: the hole keeps its size.\n"
                         "Clear the area: as inside, and all within is milled away."));
    // The name of a combo box may be its choice: what it chooses is said here.
    m_run->setAccessibleDescription(m_run->accessibleName() + u'\n' + m_run->toolTip());
    m_run->setFocusPolicy(Qt::StrongFocus);
    m_run->addItems({tr("on the line"), tr("outside"), tr("inside"), tr("clear the area")});
    buildTool(row, name, tools);
    connect(m_pen, &QComboBox::currentIndexChanged, this, &PenChoices::changed);
    connect(m_tool, &MeasureBox::valueChanged, this, &PenChoices::changed);
    connect(m_run, &QComboBox::currentIndexChanged, this, [this] {
        openTool();
        emit changed();
    });
    openTool();
}

void PenChoices::buildPen(int row, const SourcePen& pen, const QString& name) {
    m_pen->setObjectName(numbered("cboPen", row));
    m_pen->setAccessibleName(tr("Pen for %1").arg(name));
    m_pen->setAccessibleDescription(m_pen->accessibleName());
    m_pen->setFocusPolicy(Qt::StrongFocus);
    if (pen.target == 0)
        m_pen->addItem(tr("choose…"), 0);
    addPens(*m_pen);
    m_pen->setCurrentIndex(m_pen->findData(pen.target));
}

void PenChoices::buildTool(int row, const QString& name, const std::vector<LibraryTool>& tools) {
    m_tool->setAccessibleName(tr("Diameter of the tool for %1").arg(name));
    m_tool->setToolTip(tr("The diameter of the tool that mills this pen's lines"));
    m_library->setObjectName(numbered("cmdTool", row));
    m_library->setText(tr("Tools"));
    m_library->setAccessibleName(tr("Tool of the library for %1").arg(name));
    m_library->setToolTip(tools.empty() ? tr("The tool library is empty")
                                        : tr("Take the diameter of a tool of the library"));
    m_library->setPopupMode(QToolButton::InstantPopup);
    m_library->setFocusPolicy(Qt::StrongFocus);
    auto* const menu = new QMenu(m_library);
    for (const LibraryTool& tool : tools) {
        const QString type = QString(tool.type).replace(u'&', QStringLiteral("&&"));
        QAction* const action = menu->addAction(
            tr("T%1  %2  %3 mm")
                .arg(QString::number(tool.number), type, m_tool->textFromValue(tool.diameter)));
        connect(action, &QAction::triggered, m_tool,
                [this, diameter = tool.diameter] { m_tool->setValue(diameter); });
    }
    if (!tools.empty())
        m_library->setMenu(menu);
}

void PenChoices::openTool() {
    const bool isBeside = m_run->currentIndex() > 0;
    m_tool->setEnabled(isBeside);
    m_library->setEnabled(isBeside && m_library->menu() != nullptr);
}

int PenChoices::pen() const {
    return m_pen->currentData().toInt();
}

std::optional<PenRun> PenChoices::run() const {
    constexpr RunSide sides[] = {RunSide::outside, RunSide::inside, RunSide::pocket};
    const int index = m_run->currentIndex();
    if (index <= 0)
        return {};
    PenRun run;
    run.side = sides[index - 1];
    run.diameter = m_tool->value();
    return run;
}

void PenChoices::setRun(const std::optional<PenRun>& run) {
    const QSignalBlocker runs(m_run);
    const QSignalBlocker tools(m_tool);
    m_run->setCurrentIndex(run ? static_cast<int>(run->side) + 1 : 0);
    if (run)
        m_tool->setValue(run->diameter);
    openTool();
}

} // namespace torvik
