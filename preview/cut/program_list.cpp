// SPDX-License-Identifier: MIT
#include "preview/cut/program_list.h"

#include "forms/target_size.h"

#include <QFontDatabase>
#include <QPainter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace torvik {
namespace {

constexpr float quietness = 0.65F; // of a number: 1 is as dark as the line

// The number stands before the line, in a quieter ink: it is no part of the program.
class NumberedLine : public QStyledItemDelegate {
public:
    explicit NumberedLine(const ProgramLines& lines, QObject* parent)
        : QStyledItemDelegate(parent), m_lines(lines) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem text = option;
        text.rect.setLeft(option.rect.left() + m_lines.numberWidth());
        QStyledItemDelegate::paint(painter, text, index);
        QRect number = option.rect;
        number.setWidth(m_lines.numberWidth() - option.fontMetrics.averageCharWidth() / 2);
        QColor quiet = option.palette.color(QPalette::Text);
        quiet.setAlphaF(quietness);
        painter->setPen(quiet);
        painter->setFont(option.font);
        painter->drawText(number, Qt::AlignRight | Qt::AlignVCenter,
                          QString::number(index.row() + 1));
    }

private:
    const ProgramLines& m_lines;
};

} // namespace

ProgramList::ProgramList(QWidget* parent) : QListView(parent), m_lines(new ProgramLines(this)) {
    setObjectName(QStringLiteral("lstProgram"));
    setAccessibleName(tr("Lines of the program"));
    setToolTip(tr("Choose a line to see the piece when the machine gets there"));
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setUniformItemSizes(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTextElideMode(Qt::ElideNone);
    setModel(m_lines);
    setItemDelegate(new NumberedLine(*m_lines, this));
}

void ProgramList::setText(std::string_view text) {
    const QFontMetrics metrics(font());
    m_lines->setText(text,
                     {metrics.averageCharWidth(), std::max(metrics.lineSpacing(), leastTarget)});
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

void ProgramList::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    scrollTo(currentIndex());
}

void ProgramList::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QListView::currentChanged(current, previous);
    if (!m_isShowing && current.isValid())
        emit lineChosen(static_cast<quint32>(current.row()) + 1);
}

} // namespace torvik
