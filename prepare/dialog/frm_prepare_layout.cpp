// SPDX-License-Identifier: MIT
#include "forms/help_key.h"
#include "forms/large_letters.h"
#include "forms/reading_order.h"
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
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
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

// Large letters may need more room than the screen has.
QScrollArea* scrolling(QWidget* content) {
    auto* const area = new QScrollArea;
    area->setObjectName(QStringLiteral("scrPrepare"));
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setFocusPolicy(Qt::NoFocus); // it follows the control that has the focus
    area->setWidget(content);
    return area;
}

QTableWidget* reportTable() {
    auto* const table = new QTableWidget(0, 2);
    table->setObjectName(QStringLiteral("grdReport"));
    table->setAccessibleName(FrmPrepare::tr("Report"));
    table->setHorizontalHeaderLabels({FrmPrepare::tr("Report"), FrmPrepare::tr("Found")});
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
    : QDialog(parent), m_surroundings(std::move(surroundings)), m_presets(m_surroundings.settings) {
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
    QWidget* const side = buildSide();
    if (hasLargeLetters(*this))
        m_details->addTab(side, m_options->title());
    else
        middle->addWidget(side);
    auto* const content = new QWidget;
    auto* const rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(buildSourceRow());
    rows->addLayout(middle, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(scrolling(content), 1);
    layout->addWidget(buildButtons());
    m_usualValues = m_options->values();
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
    auto* const layout = new QBoxLayout(
        hasLargeLetters(*this) ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight, row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const source = new QHBoxLayout;
    source->addWidget(m_open);
    source->addWidget(m_sourceName, 1);
    layout->addLayout(source, 1);
    auto* const presets = new QHBoxLayout;
    addPresets(*presets);
    layout->addLayout(presets);
    return row;
}

void FrmPrepare::addPresets(QHBoxLayout& layout) {
    m_preset = new QComboBox;
    m_preset->setObjectName(QStringLiteral("cboPreset"));
    m_preset->setAccessibleName(tr("Where drawings like this one come from"));
    m_preset->addItems(Presets::captions());
    m_preset->setToolTip(tr("Sets the options as drawings of this kind need them. What you change "
                            "is kept\nfor the next one when the prepared drawing is saved."));
    auto* const label = new QLabel(tr("&Kind of file"));
    label->setObjectName(QStringLiteral("lblPreset"));
    label->setBuddy(m_preset);
    m_usual = button("cmdUsual", tr("Usual options"),
                     tr("Sets all options to what they are when Torvik is new"));
    layout.addWidget(label);
    layout.addWidget(m_preset);
    layout.addWidget(m_usual);
}

QWidget* FrmPrepare::buildDrawings() {
    m_drawings = new BeforeAfter;
    m_report = reportTable();
    m_pens = new PenList(m_surroundings.tools);
    m_details = new QTabWidget;
    m_details->setObjectName(QStringLiteral("tabDetails"));
    m_details->addTab(m_pens, tr("&Pens and tools"));
    m_details->addTab(m_report, tr("&Report"));
    m_details->setAccessibleName(tr("Pens and report"));
    m_details->setDocumentMode(true);
    m_details->tabBar()->setObjectName(QStringLiteral("tabDetailsBar"));
    auto* const split = new QSplitter(Qt::Vertical);
    split->setObjectName(QStringLiteral("splPrepare"));
    split->addWidget(m_drawings);
    split->addWidget(m_details);
    split->setChildrenCollapsible(false);
    split->setStretchFactor(0, 1);
    split->setStretchFactor(1, 0);
    split->setSizes(hasLargeLetters(*this) ? QList{300, 300} : QList{420, 180});
    readInOrder(*split);
    return split;
}

QWidget* FrmPrepare::buildSide() {
    m_options = new OptionPanel;
    auto* const side = new QScrollArea;
    side->setObjectName(QStringLiteral("scrOptions"));
    side->setFrameShape(QFrame::NoFrame);
    side->setWidgetResizable(true);
    side->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    side->setFocusPolicy(Qt::NoFocus); // it follows the control that has the focus
    side->setWidget(m_options);
    side->setFixedWidth(m_options->sizeHint().width() +
                        side->verticalScrollBar()->sizeHint().width());
    return side;
}

QWidget* FrmPrepare::buildButtons() {
    m_stateIcon = new QLabel;
    m_stateIcon->setObjectName(QStringLiteral("picState"));
    m_state = new QLabel;
    m_state->setObjectName(QStringLiteral("lblState"));
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
    connect(m_preset, &QComboBox::currentIndexChanged, this, &FrmPrepare::takePreset);
    connect(m_usual, &QPushButton::clicked, this, [this] {
        QVariantMap values = m_usualValues;
        values.insert(Presets::original(m_preset->currentIndex()));
        m_options->setValues(values);
    });
    connect(m_options, &OptionPanel::changed, this, &FrmPrepare::prepareSoon);
    connect(m_pens, &PenList::changed, this, &FrmPrepare::prepareSoon);
    connect(m_report->horizontalHeader(), &QHeaderView::sectionResized, m_report,
            &QTableWidget::resizeRowsToContents);
    connect(&m_rest, &QTimer::timeout, this, &FrmPrepare::prepareNow);
}

void FrmPrepare::placePensInTabOrder() {
    // The controls of the list of pens come and go; what stands before them keeps its order.
    QWidget* last = m_details->tabBar();
    for (QWidget* const control : m_pens->controls()) {
        setTabOrder(last, control);
        last = control;
    }
    setTabOrder(last, m_report);
}

} // namespace torvik
