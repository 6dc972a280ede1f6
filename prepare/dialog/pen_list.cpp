// SPDX-License-Identifier: MIT
#include "prepare/dialog/pen_list.h"

#include "prepare/dialog/measure_box.h"
#include "prepare/dialog/pen_colour.h"

#include <QComboBox>
#include <QHeaderView>
#include <QToolButton>

#include <algorithm>

namespace torvik {
namespace {

enum Column {
    columnSource,
    columnStrokes,
    columnPen,
    columnRun,
    columnTool,
    columnLibrary,
    columnsInAll
};

} // namespace

PenList::PenList(std::vector<LibraryTool> tools, QWidget* parent)
    : QTableWidget(0, columnsInAll, parent), m_tools(std::move(tools)) {
    setObjectName(QStringLiteral("grdPens"));
    setAccessibleName(tr("Pens of the drawing"));
    setHorizontalHeaderLabels({tr("In the source"),
                               tr("Strokes"),
                               tr("Drawn by"),
                               tr("The tool runs"),
                               tr("Tool's diameter"),
                               {}});
    horizontalHeaderItem(columnLibrary)->setData(Qt::AccessibleTextRole, tr("From the library"));
    verticalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(columnSource, QHeaderView::Stretch);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setFocusPolicy(Qt::NoFocus); // the controls in it have it
    setTabKeyNavigation(false);
    setShowGrid(false);
    verticalHeader()->setMinimumSectionSize(fontMetrics().height() + 14);
}

void PenList::setPens(const std::vector<SourcePen>& pens) {
    if (shows(pens))
        return;
    m_pens = pens;
    qDeleteAll(controls()); // not later: nothing of them shall be found any more
    m_rows.clear();
    setRowCount(0);
    setRowCount(static_cast<int>(pens.size()));
    for (int row = 0; row < rowCount(); ++row)
        addPen(row, pens[static_cast<std::size_t>(row)]);
    resizeRowsToContents();
}

// A screen reader that goes from cell to cell hears the cell and not the control in it.
void PenList::setControl(int row, int column, QWidget& control) {
    auto* const cell = new QTableWidgetItem;
    cell->setFlags(Qt::ItemIsEnabled);
    cell->setData(Qt::AccessibleTextRole, control.accessibleName());
    setItem(row, column, cell);
    setCellWidget(row, column, &control);
}

bool PenList::shows(const std::vector<SourcePen>& pens) const {
    return std::equal(pens.begin(), pens.end(), m_pens.begin(), m_pens.end(),
                      [](const SourcePen& a, const SourcePen& b) {
                          return a.number == b.number && a.colour == b.colour;
                      });
}

void PenList::addPen(int row, const SourcePen& pen) {
    const bool isLayer = pen.colour.starts_with(layerMark);
    const bool isColour = !pen.colour.empty() && !isLayer;
    const QString name =
        isLayer    ? tr("Layer %1").arg(QString::fromStdString(pen.colour.substr(layerMark.size())))
        : isColour ? QString::fromStdString(pen.colour)
                   : tr("Pen %1").arg(pen.number);
    const QColor colour = isColour ? QColor(name) : penColour(isLayer ? pen.target : pen.number);
    auto* const source = new QTableWidgetItem(QIcon(colourSwatch(colour)), name);
    auto* const strokes = new QTableWidgetItem(QString::number(pen.strokes));
    strokes->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QTableWidgetItem* const item : {source, strokes})
        item->setFlags(Qt::ItemIsEnabled);
    setItem(row, columnSource, source);
    setItem(row, columnStrokes, strokes);
    m_rows.push_back(std::make_unique<PenChoices>(row, pen, name, m_tools));
    const PenChoices& controls = *m_rows.back();
    setControl(row, columnPen, *controls.penBox());
    setControl(row, columnRun, *controls.runBox());
    setControl(row, columnTool, *controls.toolBox());
    setControl(row, columnLibrary, *controls.libraryButton());
    connect(&controls, &PenChoices::changed, this, [this, &controls] {
        share(controls);
        emit changed();
    });
}

void PenList::share(const PenChoices& from) {
    for (const auto& row : m_rows)
        if (row.get() != &from && row->pen() == from.pen())
            row->setRun(from.run());
}

std::vector<QWidget*> PenList::controls() const {
    std::vector<QWidget*> controls;
    controls.reserve(m_rows.size() * 4);
    for (const auto& row : m_rows)
        controls.insert(controls.end(),
                        {row->penBox(), row->runBox(), row->toolBox(), row->libraryButton()});
    return controls;
}

std::map<int, int> PenList::pens() const {
    std::map<int, int> pens;
    for (std::size_t i = 0; i < m_pens.size(); ++i)
        if (m_pens[i].colour.empty() && m_rows[i]->pen() > 0)
            pens[m_pens[i].number] = m_rows[i]->pen();
    return pens;
}

std::map<std::string, int> PenList::colours() const {
    std::map<std::string, int> colours;
    for (std::size_t i = 0; i < m_pens.size(); ++i)
        if (!m_pens[i].colour.empty())
            colours[m_pens[i].colour] = m_rows[i]->pen();
    return colours;
}

std::set<int> PenList::drawnBy() const {
    std::set<int> pens;
    for (const auto& row : m_rows)
        pens.insert(row->pen());
    return pens;
}

std::map<int, PenRun> PenList::runs() const {
    std::map<int, PenRun> runs;
    for (const auto& row : m_rows)
        if (const auto run = row->run(); run && row->pen() > 0)
            runs[row->pen()] = *run;
    return runs;
}

} // namespace torvik
