// SPDX-License-Identifier: MIT
#include "preview/cut/program_list.h"

#include <QFontDatabase>

namespace torvik {

ProgramList::ProgramList(QWidget* parent) : QListView(parent), m_lines(new ProgramLines(this)) {
    setObjectName(QStringLiteral("lstProgram"));
    setAccessibleName(tr("Lines of the program"));
    setToolTip(tr("Choose a line to see the piece when the machine gets there"));
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setUniformItemSizes(true);
    setLayoutMode(QListView::Batched);
    setBatchSize(10'000);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTextElideMode(Qt::ElideNone);
    setModel(m_lines);
}

void ProgramList::setText(std::string_view text) {
    const QFontMetrics metrics(font());
    m_lines->setText(text, {metrics.averageCharWidth(), metrics.lineSpacing()});
}

void ProgramList::showLine(std::uint32_t line) {
    const int row = static_cast<int>(line) - 1;
    if (row < 0 || row >= m_lines->rowCount() || row == currentIndex().row())
        return;
    m_isShowing = true;
    setCurrentIndex(m_lines->index(row));
    scrollTo(currentIndex(), QAbstractItemView::PositionAtCenter);
    m_isShowing = false;
}

void ProgramList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (!m_isShowing && current.isValid())
        emit lineChosen(static_cast<quint32>(current.row()) + 1);
}

} // namespace torvik
