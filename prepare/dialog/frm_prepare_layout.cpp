// SPDX-License-Identifier: MIT
#include "forms/help_key.h"
#include "prepare/dialog/before_after.h"
#include "prepare/dialog/frm_prepare.h"
#include "prepare/dialog/option_panel.h"
#include "prepare/dialog/pen_list.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTableWidget>
#include <QVBoxLayout>

namespace torvik {
namespace {

constexpr int restTime = 250;         // milliseconds
constexpr QSize roomForFrame(16, 48); // what the window manager puts round the dialog

QPushButton* button(const char* name, const QString& caption, const QString& help) {
    auto* const result = new QPushButton(caption);
    result->setObjectName(QString::fromUtf8(name));
    result->setToolTip(help);
    result->setAutoDefault(false); // Enter in a number box ends its input, no more
    return result;
}

QTableWidget* reportTable() {
    auto* const table = new QTableWidget(0, 2);
    table->setObjectName(QStringLiteral("grdReport"));
    table->setAccessibleName(FrmPrepare::tr("Report"));
    table->setHorizontalHeaderLabels({FrmPrepare::tr("Report"), QString()});
    table->horizontalHeader()->setStretchLastSection(true);
    table->setColumnWidth(0, table->fontMetrics().averageCharWidth() * 38);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->horizontalHeader()->setHighlightSections(false);
    table->verticalHeader()->hide();
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    return table;
}

} // namespace

FrmPrepare::FrmPrepare(PrepareSurroundings surroundings, QWidget* parent)
    : QDialog(parent), m_surroundings(std::move(surroundings)) {
    setObjectName(QStringLiteral("frmPrepare"));
    setWindowTitle(tr("Prepare a Drawing"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    setProperty(helpContextProperty, m_surroundings.helpContext);
    setAcceptDrops(true);
    m_rest.setObjectName(QStringLiteral("tmrRest"));
    m_rest.setSingleShot(true);
    m_rest.setInterval(restTime);

    auto* const middle = new QHBoxLayout;
    middle->addWidget(buildDrawings(), 1);
    middle->addWidget(buildSide());
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(buildSourceRow());
    layout->addLayout(middle, 1);
    layout->addWidget(buildButtons());
    connectControls();
    placePensInTabOrder();
    m_drawings->setHints(tr("Open or drop a drawing"), tr("What becomes of it appears here"));
    showState(State::idle, {});
    resize(QSize(1120, 720).boundedTo(screen()->availableSize() - roomForFrame));
}

QWidget* FrmPrepare::buildSourceRow() {
    m_open = button("cmdOpen", tr("&Open…"),
                    tr("Choose a drawing of another program; it can also be dropped here"));
    m_sourceName = new QLabel;
    m_sourceName->setObjectName(QStringLiteral("lblSource"));
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_open);
    layout->addWidget(m_sourceName, 1);
    return row;
}

QWidget* FrmPrepare::buildDrawings() {
    m_drawings = new BeforeAfter;
    m_report = reportTable();
    auto* const split = new QSplitter(Qt::Vertical);
    split->setObjectName(QStringLiteral("splPrepare"));
    split->addWidget(m_drawings);
    split->addWidget(m_report);
    split->setChildrenCollapsible(false);
    split->setStretchFactor(0, 1);
    split->setStretchFactor(1, 0);
    split->setSizes({420, 180});
    return split;
}

QWidget* FrmPrepare::buildSide() {
    m_options = new OptionPanel;
    m_pens = new PenList;
    m_pensLabel = new QLabel(tr("&Pens"));
    m_pensLabel->setObjectName(QStringLiteral("lblPens"));
    auto* const side = new QWidget;
    side->setFixedWidth(side->fontMetrics().averageCharWidth() * 46);
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_options);
    layout->addWidget(m_pensLabel);
    layout->addWidget(m_pens, 1);
    return side;
}

QWidget* FrmPrepare::buildButtons() {
    m_stateIcon = new QLabel;
    m_stateIcon->setObjectName(QStringLiteral("picState"));
    m_state = new QLabel;
    m_state->setObjectName(QStringLiteral("lblState"));
    m_state->setAccessibleName(tr("State"));
    m_state->setWordWrap(true);
    m_save = button("cmdSave", tr("&Save…"), tr("Save the drawing that stands under After"));
    m_save->setEnabled(false);
    m_close = button("cmdClose", tr("&Close"), tr("Back to the main window (Escape)"));
    auto* const row = new QWidget;
    row->setMinimumHeight(row->fontMetrics().lineSpacing() * 2);
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_stateIcon);
    layout->addWidget(m_state, 1);
    layout->addWidget(m_save);
    layout->addWidget(m_close);
    return row;
}

void FrmPrepare::connectControls() {
    connect(m_open, &QPushButton::clicked, this, &FrmPrepare::chooseSource);
    connect(m_save, &QPushButton::clicked, this, &FrmPrepare::save);
    connect(m_close, &QPushButton::clicked, this, &FrmPrepare::reject);
    connect(m_options, &OptionPanel::changed, this, &FrmPrepare::prepareSoon);
    connect(m_pens, &PenList::changed, this, &FrmPrepare::prepareSoon);
    connect(m_report->horizontalHeader(), &QHeaderView::sectionResized, m_report,
            &QTableWidget::resizeRowsToContents);
    connect(&m_rest, &QTimer::timeout, this, &FrmPrepare::prepareNow);
}

void FrmPrepare::placePensInTabOrder() {
    // The boxes of the list of pens come and go; what stands before them keeps its order.
    const auto& choices = m_pens->choices();
    if (choices.empty())
        m_pensLabel->setBuddy(m_pens);
    else
        m_pensLabel->setBuddy(choices.front());
    QWidget* last = m_options->lastControl();
    for (QWidget* const choice : choices) {
        setTabOrder(last, choice);
        last = choice;
    }
}

} // namespace torvik
