// SPDX-License-Identifier: MIT
// The window itself: layout, menu, keys and closing. The steps are in frm_main_steps.cpp, opening
// and importing in frm_main_open.cpp.
#include "wizard/frm_main.h"

#include "base/files.h"
#include "preview/preview_widget.h"
#include "wizard/colour_tree_view.h"
#include "wizard/globals_page.h"
#include "wizard/header_page.h"
#include "wizard/order_page.h"
#include "wizard/output_page.h"
#include "wizard/pen_page.h"
#include "wizard/recent_drawings.h"
#include "wizard/step_list.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>

namespace torvik {
namespace {

QPushButton* button(const QString& name, const QString& text, const QString& help) {
    auto* const result = new QPushButton(text);
    result->setObjectName(name);
    result->setToolTip(help);
    return result;
}

// A page that scrolls where the window is lower than its form.
QScrollArea* scrolling(QWidget* page) {
    auto* const area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setMinimumWidth(page->minimumSizeHint().width());
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

    // The form previews the keys, whichever control has the focus.
    qApp->installEventFilter(this);
    showStep(1);
    resize(1180, 760);
}

void FrmMain::buildWindow() {
    m_globals = new GlobalsPage(m_workshop, *this);
    m_pens = new PenPage(m_workshop, *this);
    m_order = new OrderPage(m_workshop);
    m_header = new HeaderPage(m_workshop);
    m_output = new OutputPage(m_workshop);
    m_pages = new QStackedWidget;
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
    setMinimumSize(minimumSizeHint().expandedTo({960, 620}));
    statusBar()->setSizeGripEnabled(true);
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

void FrmMain::buildMenu() {
    QMenu* const file = menuBar()->addMenu(tr("&File"));
    file->setObjectName(QStringLiteral("mnuFile"));
    auto* const open = file->addAction(tr("&Open…"), QKeySequence::Open, this,
                                       [this] { later([this] { ReadFile(); }); });
    open->setObjectName(QStringLiteral("mnuFileOpen"));
    m_recent = file->addMenu(tr("&Recent drawings"));
    m_recent->setObjectName(QStringLiteral("mnuFileRecent"));
    m_recent->setToolTipsVisible(true);
    connect(file, &QMenu::aboutToShow, this, &FrmMain::fillRecentMenu);
    file->addSeparator();
    auto* const exit = file->addAction(tr("E&xit"), QKeySequence(tr("Ctrl+Q")), this,
                                       [this] { later([this] { close(); }); });
    exit->setObjectName(QStringLiteral("mnuFileExit"));

    QMenu* const view = menuBar()->addMenu(tr("&View"));
    view->setObjectName(QStringLiteral("mnuView"));
    QAction* const tree = view->addAction(tr("&Pens of the drawing"), m_tree, &QWidget::setVisible);
    tree->setObjectName(QStringLiteral("mnuViewTree"));
    tree->setCheckable(true);
    tree->setChecked(true);
    QAction* const whole =
        view->addAction(tr("&Full screen"), QKeySequence(Qt::Key_F11), this,
                        [this](bool on) { on ? showFullScreen() : showNormal(); });
    whole->setObjectName(QStringLiteral("mnuViewFullScreen"));
    whole->setCheckable(true);

    QMenu* const help = menuBar()->addMenu(tr("&Help"));
    help->setObjectName(QStringLiteral("mnuHelp"));
    auto* const contents = help->addAction(tr("&Contents"), QKeySequence(Qt::Key_F1), this,
                                           [this] { showHelpFor(QApplication::focusWidget()); });
    contents->setObjectName(QStringLiteral("mnuHelpContents"));
    auto* const about = help->addAction(tr("&About Torvik"), this,
                                        [this] { later([this] { m_services.showAbout(); }); });
    about->setObjectName(QStringLiteral("mnuHelpAbout"));
}

void FrmMain::fillRecentMenu() {
    m_recent->clear();
    const QStringList names = recentDrawings();
    for (qsizetype i = 0; i < names.size(); ++i) {
        QAction* const action = m_recent->addAction(
            tr("&%1  %2").arg(i + 1).arg(QFileInfo(names[i]).fileName()), this,
            [this, name = names[i]] {
                later([this, name] { ReadFile(pathFromUtf8(name.toStdString())); });
            });
        action->setToolTip(names[i]);
    }
    m_recent->setEnabled(!names.isEmpty());
}

void FrmMain::showHelpFor(const QWidget* control) {
    for (; control != nullptr; control = control->parentWidget()) {
        const int context = control->property("helpContext").toInt();
        if (context > 0) {
            m_services.showHelp(context);
            return;
        }
    }
    m_services.showHelp(m_workshop.job.gintWizardStep);
}

bool FrmMain::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !isActiveWindow() ||
        QApplication::activeModalWidget() != nullptr ||
        QApplication::activePopupWidget() != nullptr || watched != QApplication::focusWidget())
        return QMainWindow::eventFilter(watched, event);
    constexpr int keyCodeUp = 38;
    constexpr int keyCodeDown = 40;
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
        return m_order->KeyCheck(keyCodeUp);
    case Qt::Key_Down:
        return m_order->KeyCheck(keyCodeDown);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* const focused = qobject_cast<QPushButton*>(watched)) {
            focused->click();
            return true;
        }
        pressForward();
        return true;
    default:
        break;
    }
    return QMainWindow::eventFilter(watched, event);
}

void FrmMain::pressForward() {
    QPushButton* const forward = m_start->isVisible() ? m_start : m_next;
    if (forward->isVisible() && forward->isEnabled())
        forward->click();
}

void FrmMain::closeEvent(QCloseEvent* event) {
    if (m_closing || CheckClose())
        event->accept();
    else
        event->ignore();
}

bool FrmMain::CheckClose() {
    if (m_workshop.job.gblnUnsaved &&
        m_workshop.messages.intStdMsgBox("Are you sure you want to close without saving\n"
                                         "the current file as G-codes?",
                                         styleQuestion, "Exit from Torvik") != buttonYes)
        return false;
    m_closing = true;
    m_flash.stop();
    m_toolSelect.stop();
    m_services.Shutdown();
    return true;
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
