// SPDX-License-Identifier: MIT
// The window itself and what its pages ask of it. Menu, keys and closing are in frm_main_menu.cpp,
// the steps in frm_main_steps.cpp, opening and importing in frm_main_open.cpp, what concerns
// drawings of other programs in frm_main_prepare.cpp.
#include "wizard/frm_main.h"

#include "preview/preview_widget.h"
#include "wizard/colour_tree_view.h"
#include "wizard/globals_page.h"
#include "wizard/header_page.h"
#include "wizard/order_page.h"
#include "wizard/output/output_page.h"
#include "wizard/pens/pen_page.h"
#include "wizard/step_list.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>

namespace torvik {
namespace {

constexpr QSize roomForFrame(16, 48); // what the window manager puts round the window

QPushButton* button(const QString& name, const QString& text, const QString& help) {
    auto* const result = new QPushButton(text);
    result->setObjectName(name);
    result->setToolTip(help);
    return result;
}

// A page that scrolls where the window is lower than its form. The control with the focus is never
// out of sight.
QScrollArea* scrolling(QWidget* page) {
    auto* const area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setMinimumWidth(page->minimumSizeHint().width() +
                          area->verticalScrollBar()->sizeHint().width());
    QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget*, QWidget* now) {
        if (now != nullptr && area->widget()->isAncestorOf(now))
            area->ensureWidgetVisible(now);
    });
    return area;
}

} // namespace

FrmMain::FrmMain(Workshop& workshop, FrameServices services)
    : m_workshop(workshop), m_services(std::move(services)) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QString::fromUtf8(usualTitle));
    setAcceptDrops(true);
    buildWindow();
    buildMenu();

    m_flash.setObjectName(QStringLiteral("tmrFlash"));
    m_flash.setParent(this);
    m_flash.setSingleShot(true);
    connect(&m_flash, &QTimer::timeout, this, [this] { m_pens->FlashLines(); });
    m_toolSelect.setObjectName(QStringLiteral("tmrToolSelect"));
    m_toolSelect.setParent(this);
    m_toolSelect.setSingleShot(true);
    connect(&m_toolSelect, &QTimer::timeout, this, &FrmMain::selectTool);

    qApp->installEventFilter(this);
    showStep(1);
    resize(QSize(1180, 760).boundedTo(screen()->availableSize() - roomForFrame));
}

void FrmMain::buildWindow() {
    m_globals = new GlobalsPage(m_workshop, *this);
    m_pens = new PenPage(m_workshop, *this);
    m_order = new OrderPage(m_workshop);
    m_header = new HeaderPage(m_workshop);
    m_output = new OutputPage(m_workshop);
    m_pages = new QStackedWidget;
    m_pages->setObjectName(QStringLiteral("picPages"));
    m_pages->addWidget(buildStartPage());
    for (QWidget* const page :
         std::initializer_list<QWidget*>{m_globals, m_pens, m_order, m_header, m_output})
        m_pages->addWidget(scrolling(page));

    m_preview = new PreviewWidget(m_workshop.job, m_workshop.tools, m_workshop.logger);
    auto* const split = new QSplitter(Qt::Horizontal);
    split->setObjectName(QStringLiteral("splMain"));
    split->addWidget(buildSide());
    split->addWidget(m_pages);
    split->addWidget(m_preview);
    split->setChildrenCollapsible(false);
    split->setStretchFactor(0, 0);
    split->setStretchFactor(1, 0);
    split->setStretchFactor(2, 1);
    split->setSizes({200, 440, 540});

    auto* const content = new QWidget;
    auto* const layout = new QVBoxLayout(content);
    layout->addWidget(split, 1);
    layout->addWidget(buildButtons());
    setCentralWidget(content);
    buildSkippedLine();
    setMinimumSize(minimumSizeHint().expandedTo({960, 620}));
}

QWidget* FrmMain::buildSide() {
    m_steps = new StepList;
    m_tree = new ColourTreeView;
    auto* const treeLabel = new QLabel(tr("Pens of the drawing"));
    treeLabel->setObjectName(QStringLiteral("lblColours"));
    m_importedLabel = treeLabel;
    auto* const side = new QWidget;
    side->setMinimumWidth(180);
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_steps);
    layout->addSpacing(8);
    layout->addWidget(treeLabel);
    layout->addWidget(m_tree, 1);
    layout->addStretch(); // where the tree is hidden
    treeLabel->hide();
    return side;
}

QWidget* FrmMain::buildStartPage() {
    auto* const title = new QLabel(tr("From a drawing to a milled part"));
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    font.setBold(true);
    title->setFont(font);
    title->setWordWrap(true);
    auto* const text = new QLabel(
        tr("<p>Torvik turns a pen-plotter drawing (<b>.plt</b>) into a program for your milling "
           "machine. Each pen colour of the drawing is one operation: cut, drilled, or left "
           "out.</p><p>Press <b>Start</b> to choose a drawing, or drop one on this window.</p>"
           "<p>Press <b>F1</b> for help at any time.</p>"));
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignTop);
    auto* const page = new QWidget;
    page->setObjectName(QStringLiteral("picOpening"));
    auto* const layout = new QVBoxLayout(page);
    layout->setContentsMargins(20, 20, 20, 20);
    layout->addWidget(title);
    layout->addSpacing(8);
    layout->addWidget(text, 1);
    return page;
}

QWidget* FrmMain::buildButtons() {
    m_back = button(QStringLiteral("cmdBack"), tr("&Back"), tr("To the page before"));
    m_next = button(QStringLiteral("cmdNext"), tr("&Next"), tr("To the next page (Enter)"));
    m_start = button(QStringLiteral("cmdStart"), tr("&Start"), tr("Choose a drawing (Enter)"));
    connect(m_back, &QPushButton::clicked, this, [this] { Wizard(-1); });
    connect(m_next, &QPushButton::clicked, this, [this] { Wizard(1); });
    connect(m_start, &QPushButton::clicked, this, [this] { Wizard(1); });
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch(1);
    layout->addWidget(m_back);
    layout->addWidget(m_next);
    layout->addWidget(m_start);
    return row;
}

void FrmMain::bringToFront() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void FrmMain::setNextEnabled(bool enabled) {
    m_next->setEnabled(enabled);
}

void FrmMain::updateTree() {
    m_tree->showTree(m_workshop.job);
}

void FrmMain::PlotLines() {
    m_preview->PlotLines();
}

void FrmMain::clearPreview() {
    m_preview->clear();
}

void FrmMain::plotBlink(const std::vector<std::int16_t>& paths, bool visible) {
    m_preview->plotBlink(paths, visible);
}

void FrmMain::startFlashing(int milliseconds) {
    m_flash.start(milliseconds);
}

void FrmMain::stopFlashing() {
    m_flash.stop();
}

} // namespace torvik
