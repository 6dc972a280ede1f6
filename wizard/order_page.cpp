// SPDX-License-Identifier: MIT
#include "wizard/order_page.h"

#include "base/error_trap.h"
#include "base/numbers.h"
#include "check/sense/sense.h"
#include "forms/dialog_places.h"
#include "forms/form_fields.h"
#include "forms/help_key.h"
#include "forms/quiet_line.h"
#include "forms/spoken_role.h"
#include "job/pens.h"
#include "languages/shown_text.h"
#include "wizard/host/finding_texts.h"
#include "wizard/host/workshop.h"
#include "wizard/order_words.h"
#include "wizard/pen_pictures.h"
#include "wizard/pens/pen_controls.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace torvik {
namespace {

constexpr int helpOrder = 4;
constexpr int pictureSide = 24;
constexpr int orderLinesKept = 5;

std::int16_t penOf(const QLabel& label) {
    return toInt16(leadingNumber(label.property(tagProperty).toString().toStdString()));
}

} // namespace

OrderPage::OrderPage(Workshop& workshop, QWidget* parent) : QWidget(parent), m_workshop(workshop) {
    setObjectName(QStringLiteral("picOrder"));
    setProperty(helpContextProperty, helpOrder);
    auto* const explanation =
        new QLabel(tr("The pens are machined from top to bottom. Move a colour with the buttons, "
                      "with the arrow keys, or by dragging it. Holes and inner shapes usually come "
                      "first, the outline that cuts the part free comes last."));
    explanation->setWordWrap(true);
    auto* const middle = new QHBoxLayout;
    middle->addWidget(buildList(), 1);
    middle->addWidget(buildButtons());
    auto* const layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(makePageTitle(tr("Machining order")));
    layout->addWidget(explanation);
    layout->addLayout(middle, 1);
    m_quiet = new QuietLine(QStringLiteral("lblQuietOrder"), orderLinesKept);
    layout->addWidget(m_quiet);
}

QWidget* OrderPage::buildList() {
    m_list = new QFrame;
    m_list->setObjectName(QStringLiteral("picOrderList"));
    setSpokenRole(*m_list, QAccessible::List);
    m_list->setAccessibleName(tr("Machining order"));
    static_cast<QFrame*>(m_list)->setFrameShape(QFrame::StyledPanel);
    m_list->setBackgroundRole(QPalette::Base);
    m_list->setAutoFillBackground(true);
    m_rowsLayout = new QVBoxLayout(m_list);
    m_rowsLayout->setContentsMargins(1, 1, 1, 1);
    m_rowsLayout->setSpacing(0);
    m_rowsLayout->addStretch(1);
    return m_list;
}

QWidget* OrderPage::buildButtons() {
    m_up = new QPushButton(tr("Move &Up"));
    m_up->setObjectName(QStringLiteral("cmdUp"));
    m_up->setToolTip(tr("Machine the selected colour earlier (arrow up)"));
    m_down = new QPushButton(tr("Move &Down"));
    m_down->setObjectName(QStringLiteral("cmdDown"));
    m_down->setToolTip(tr("Machine the selected colour later (arrow down)"));
    // A click leaves the focus with the colours: Enter leads on then, as on every page.
    for (QPushButton* const button : {m_up, m_down})
        button->setFocusPolicy(Qt::TabFocus);
    connect(m_up, &QPushButton::clicked, this, [this] { ColourReOrder(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { ColourReOrder(1); });
    auto* const column = new QWidget;
    auto* const layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_up);
    layout->addWidget(m_down);
    layout->addStretch(1);
    return column;
}

void OrderPage::ShowOrder(std::int16_t direction) {
    withErrorTrap(m_workshop.logger, {"ShowOrder", "modHpgl"}, [&] {
        Job& job = m_workshop.job;
        for (const Row& row : m_rows)
            delete row.frame;
        m_rows.clear();
        m_selectedRow = 0;
        if (!job.answers.gblnOrderSet)
            rebuildOrder(job);
        job.answers.gintOrderCount = 0;
        for (const std::int16_t pen : job.answers.gintOrder) {
            if (pen > 0) {
                ++job.answers.gintOrderCount;
                addRow(pen);
            }
        }
        placeRowsInTabOrder();
        if (!m_rows.empty()) {
            select(1);
            if (direction > 0)
                m_rows.front().picOrd->setFocus();
        }
        sayOrder();
    });
}

void OrderPage::addRow(std::int16_t pen) {
    const auto number = static_cast<int>(m_rows.size()) + 1;
    Row row{new QWidget, new QLabel, new QLabel, new QLabel};
    row.picOrd->setObjectName(QStringLiteral("picOrd%1").arg(number));
    row.lblOrd->setObjectName(QStringLiteral("lblOrd%1").arg(number));
    row.picOrd->setFocusPolicy(Qt::StrongFocus);
    setSpokenRole(*row.picOrd, QAccessible::ListItem);
    row.lblOrdWork->setObjectName(QStringLiteral("lblOrdWork%1").arg(number));
    // The first line of both stands beside the picture's middle.
    const int above = std::max(0, (pictureSide - fontMetrics().height()) / 2);
    row.lblOrd->setContentsMargins(6, above, 0, above);
    row.lblOrdWork->setContentsMargins(0, above, 6, above);
    row.lblOrd->setAlignment(Qt::AlignTop);
    row.lblOrdWork->setAlignment(Qt::AlignTop);
    row.lblOrdWork->setTextFormat(Qt::PlainText);
    row.lblOrdWork->setWordWrap(true);
    row.frame->setCursor(Qt::OpenHandCursor);
    auto* const layout = new QHBoxLayout(row.frame);
    layout->setContentsMargins(6, 3, 6, 3);
    layout->addWidget(row.picOrd, 0, Qt::AlignTop);
    auto* const texts = new QHBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(row.lblOrd);
    texts->addWidget(row.lblOrdWork, 1);
    layout->addLayout(texts, 1);
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{row.frame, row.picOrd, row.lblOrd, row.lblOrdWork})
        widget->installEventFilter(this);
    m_rowsLayout->insertWidget(number - 1, row.frame);
    m_rows.push_back(row);
    showPen(m_rows.back(), pen);
}

// Rows are made later than the buttons beside them.
void OrderPage::placeRowsInTabOrder() {
    QWidget* last = m_up->previousInFocusChain();
    while ((last->focusPolicy() & Qt::TabFocus) == 0 && last != m_up)
        last = last->previousInFocusChain();
    for (const Row& row : m_rows) {
        setTabOrder(last, row.picOrd);
        last = row.picOrd;
    }
}

void OrderPage::showPen(const Row& row, std::int16_t pen) {
    const Job& job = m_workshop.job;
    const QString colour = shownText(job.answers.gudtPens[pen].strColour);
    row.picOrd->setPixmap(penPicture(static_cast<std::int16_t>(imageCut + pen), job)
                              .pixmap(QSize(pictureSide, pictureSide), devicePixelRatioF()));
    row.lblOrd->setText(colour);
    row.lblOrd->setProperty(tagProperty, QString::number(pen));
    const QString work = machiningText(job.answers, m_workshop.tools, pen);
    row.lblOrdWork->setText(work.isEmpty() ? work : QStringLiteral("\u00A0– ") + work);
    row.lblOrdWork->setAccessibleName(work);
    sayRow(row);
}

// The row that has the focus says all of it: "2: Red, drilled, T3 5.0 mm Drill".
void OrderPage::sayRow(const Row& row) const {
    const qsizetype number = &row - m_rows.data() + 1;
    const QString work = row.lblOrdWork->accessibleName();
    row.picOrd->setAccessibleName(tr("%1: %2").arg(number).arg(row.lblOrd->text()) +
                                  (work.isEmpty() ? work : QStringLiteral(", ") + work));
}

void OrderPage::sayOrder() {
    if (m_rows.empty())
        return m_quiet->say(
            {{tr("Every pen is left out, so nothing is milled."), QuietLine::Tone::warning}});
    std::vector<std::int16_t> order;
    for (const Row& row : m_rows)
        order.push_back(penOf(*row.lblOrd));
    check::Findings findings;
    check::findOrderSense(m_workshop.job, m_workshop.tools, order, findings);
    QuietLine::Texts texts = findingTexts(findings);
    if (findings.count(check::Kind::toolChanges) == 0)
        texts.push_back({tr("Tool changes: %1")
                             .arg(check::toolChanges(m_workshop.job, m_workshop.tools, order))});
    m_quiet->say(texts);
}

void OrderPage::select(std::int16_t row) {
    ListItemClicked(row, penOf(*m_rows[static_cast<std::size_t>(row - 1)].lblOrd));
}

void OrderPage::ListItemClicked(std::int16_t row, std::int16_t pen) {
    withErrorTrap(m_workshop.logger, {"ListItemClicked", "modHpgl"}, [&] {
        const auto count = static_cast<std::int16_t>(m_rows.size());
        // The first row is tested first, so a single row leaves cmdDown enabled: it has nowhere to
        // go.
        const bool up = row != 1;
        const bool down = row == 1 || row != count;
        // The focus of a button that closes would go to its neighbour, and the next press undo the
        // last one.
        if ((m_up->hasFocus() && !up) || (m_down->hasFocus() && !down))
            m_rows[static_cast<std::size_t>(row - 1)].picOrd->setFocus();
        m_up->setEnabled(up);
        m_down->setEnabled(down);
        for (std::int16_t i = 1; i <= count; ++i)
            highlight(i, i == row);
        m_selectedRow = row;
        m_selectedPen = pen;
    });
}

void OrderPage::highlight(std::int16_t row, bool selected) {
    const Row& shown = m_rows[static_cast<std::size_t>(row - 1)];
    for (QLabel* const label : {shown.lblOrd, shown.lblOrdWork}) {
        label->setAutoFillBackground(selected);
        label->setBackgroundRole(selected ? QPalette::Highlight : QPalette::Base);
        label->setForegroundRole(selected ? QPalette::HighlightedText : QPalette::Text);
    }
    const QString colour = shown.lblOrd->text();
    shown.lblOrd->setAccessibleName(selected ? tr("%1, selected").arg(colour) : colour);
}

void OrderPage::ColourReOrder(std::int16_t step) {
    withErrorTrap(m_workshop.logger, {"ColourReOrder", "modHpgl"}, [&] {
        const std::int16_t oldRow = m_selectedRow;
        const auto newRow = static_cast<std::int16_t>(oldRow + step);
        const auto count = static_cast<std::int16_t>(m_rows.size());
        if (oldRow < 1 || oldRow > count || newRow < 1 || newRow > count)
            return;
        const Row& from = m_rows[static_cast<std::size_t>(oldRow - 1)];
        const Row& to = m_rows[static_cast<std::size_t>(newRow - 1)];
        const std::int16_t pen = m_selectedPen;
        showPen(from, penOf(*to.lblOrd));
        showPen(to, pen);
        ListItemClicked(newRow, pen);
        sayOrder();
        if (from.picOrd->hasFocus())
            to.picOrd->setFocus();
    });
}

void OrderPage::KeyCheck(int keyCode) {
    constexpr int keyCodeUp = 38;
    constexpr int keyCodeDown = 40;
    if (m_workshop.job.gintWizardStep != 4)
        return;
    if (keyCode == keyCodeDown && m_down->isEnabled())
        m_down->click();
    else if (keyCode == keyCodeUp && m_up->isEnabled())
        m_up->click();
}

void OrderPage::readOrder() {
    withErrorTrap(m_workshop.logger, {"readOrder", "modHpgl"},
                  [&] { storeTyped(m_workshop.job.answers); });
}

void OrderPage::storeTyped(Answers& answers) const {
    answers.gintOrder.fill(0);
    answers.gintOrderCount = static_cast<std::int16_t>(m_rows.size());
    for (std::int16_t i = 1; i <= answers.gintOrderCount; ++i)
        answers.gintOrder[i] = penOf(*m_rows[static_cast<std::size_t>(i - 1)].lblOrd);
    answers.gblnOrderSet = true;
}

std::int16_t OrderPage::rowOf(const QObject* widget) const {
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        if (widget == m_rows[i].frame || widget == m_rows[i].picOrd || widget == m_rows[i].lblOrd ||
            widget == m_rows[i].lblOrdWork)
            return static_cast<std::int16_t>(i + 1);
    return 0;
}

std::int16_t OrderPage::rowAt(int y) const {
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        if (y <= m_rows[i].frame->geometry().bottom())
            return static_cast<std::int16_t>(i + 1);
    return static_cast<std::int16_t>(m_rows.size());
}

// The selected row follows the mouse, one place at a time, so that no pen is passed over.
void OrderPage::dragTo(int y) {
    const std::int16_t target = rowAt(y);
    const std::int16_t step = target < m_selectedRow ? -1 : 1;
    while (m_selectedRow != target) {
        const std::int16_t before = m_selectedRow;
        ColourReOrder(step);
        if (m_selectedRow == before)
            return;
    }
}

bool OrderPage::eventFilter(QObject* watched, QEvent* event) {
    const std::int16_t row = rowOf(watched);
    if (row == 0)
        return QWidget::eventFilter(watched, event);
    auto* const widget = static_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
            select(row);
            m_rows[static_cast<std::size_t>(row - 1)].picOrd->setFocus();
        }
        return true;
    case QEvent::MouseMove: {
        const auto* const mouse = static_cast<QMouseEvent*>(event);
        if (mouse->buttons() & Qt::LeftButton)
            dragTo(widget->mapTo(m_list, mouse->position().toPoint()).y());
        return true;
    }
    case QEvent::FocusIn: {
        // A window that comes back gives its focus back: that is no choice.
        const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason &&
            reason != Qt::MenuBarFocusReason)
            select(row);
        break;
    }
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace torvik
