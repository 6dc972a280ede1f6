// SPDX-License-Identifier: MIT
#include "prepare/dialog/pen_list.h"

#include "job/records.h"
#include "prepare/dialog/pen_colour.h"

#include <QComboBox>
#include <QHeaderView>

#include <algorithm>

namespace torvik {
namespace {

enum Column { columnSource, columnStrokes, columnTarget };

QComboBox* penChoice(const QString& name, const QString& accessibleName, int target) {
    auto* const box = new QComboBox;
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    box->setFocusPolicy(Qt::StrongFocus);
    if (target == 0)
        box->addItem(PenList::tr("choose…"), 0);
    for (int pen = 1; pen <= penCount; ++pen)
        box->addItem(QIcon(colourSwatch(penColour(pen))), penName(pen), pen);
    box->setCurrentIndex(box->findData(target));
    return box;
}

} // namespace

PenList::PenList(QWidget* parent) : QTableWidget(0, 3, parent) {
    setObjectName(QStringLiteral("grdPens"));
    setAccessibleName(tr("Pens of the drawing"));
    setToolTip(tr("Which of the eight pens draws each pen or colour of the source"));
    setHorizontalHeaderLabels({tr("In the source"), tr("Strokes"), tr("Drawn by")});
    verticalHeader()->hide();
    horizontalHeader()->setSectionResizeMode(columnSource, QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(columnStrokes, QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(columnTarget, QHeaderView::ResizeToContents);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    setSelectionMode(QAbstractItemView::NoSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setFocusPolicy(Qt::NoFocus); // the choices in it have it
    setTabKeyNavigation(false);
    setShowGrid(false);
}

void PenList::setPens(const std::vector<SourcePen>& pens) {
    if (shows(pens))
        return;
    m_pens = pens;
    qDeleteAll(m_choices); // not later: nothing of them shall be found any more
    m_choices.clear();
    setRowCount(0);
    setRowCount(static_cast<int>(pens.size()));
    for (int row = 0; row < rowCount(); ++row)
        addPen(row, pens[static_cast<std::size_t>(row)]);
    resizeRowsToContents();
}

bool PenList::shows(const std::vector<SourcePen>& pens) const {
    return std::equal(pens.begin(), pens.end(), m_pens.begin(), m_pens.end(),
                      [](const SourcePen& a, const SourcePen& b) {
                          return a.number == b.number && a.colour == b.colour;
                      });
}

void PenList::addPen(int row, const SourcePen& pen) {
    const bool isColour = pen.number == 0;
    const QString name =
        isColour ? QString::fromStdString(pen.colour) : tr("Pen %1").arg(pen.number);
    const QColor colour = isColour ? QColor(name) : penColour(pen.number);
    auto* const source = new QTableWidgetItem(QIcon(colourSwatch(colour)), name);
    auto* const strokes = new QTableWidgetItem(QString::number(pen.strokes));
    strokes->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QTableWidgetItem* const item : {source, strokes})
        item->setFlags(Qt::ItemIsEnabled);
    setItem(row, columnSource, source);
    setItem(row, columnStrokes, strokes);
    auto* const choice =
        penChoice(QStringLiteral("cboPen%1").arg(row), tr("Pen for %1").arg(name), pen.target);
    connect(choice, &QComboBox::currentIndexChanged, this, &PenList::changed);
    setCellWidget(row, columnTarget, choice);
    m_choices.push_back(choice);
}

int PenList::chosen(std::size_t row) const {
    return m_choices[row]->currentData().toInt();
}

std::map<int, int> PenList::pens() const {
    std::map<int, int> pens;
    for (std::size_t i = 0; i < m_pens.size(); ++i)
        if (m_pens[i].number > 0 && chosen(i) > 0)
            pens[m_pens[i].number] = chosen(i);
    return pens;
}

std::map<std::string, int> PenList::colours() const {
    std::map<std::string, int> colours;
    for (std::size_t i = 0; i < m_pens.size(); ++i)
        if (m_pens[i].number == 0)
            colours[m_pens[i].colour] = chosen(i);
    return colours;
}

} // namespace torvik
