// SPDX-License-Identifier: MIT
#include "wizard/frm_main.h"

#include "base/error_trap.h"
#include "base/files.h"
#include "forms/help_key.h"
#include "forms/large_letters.h"
#include "forms/reading_order.h"
#include "prepare/dialog/dragged_source.h"
#include "preview/cut/cut_picture.h"
#include "preview/preview_widget.h"
#include "sheet/dialog/job_sheet_dialog.h"
#include "wizard/colour_tree_view.h"
#include "wizard/globals_page.h"
#include "wizard/header_page.h"
#include "wizard/later.h"
#include "wizard/main_menu.h"
#include "wizard/order_page.h"
#include "wizard/output/output_page.h"
#include "wizard/pens/pen_controls.h"
#include "wizard/pens/pen_page.h"
#include "wizard/skipped_line.h"
#include "wizard/start_page.h"
#include "wizard/status_lines.h"
#include "wizard/step_list.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>

#include <algorithm>
#include <utility>

namespace torvik {
namespace {

constexpr QSize roomForFrame(16, 48); // what the window manager puts round the window

QPushButton* button(const QString& name, const QString& text, const QString& help) {
    auto* const result = new QPushButton(text);
    result->setObjectName(name);
    result->setToolTip(help);
    return result;
}

// The window fits 800 by 600 anyway.
bool isNarrowScreen(const QWidget& window) {
    return window.screen()->availableSize().width() < 800 - roomForFrame.width() ||
           hasLargeLetters(window);
}

// Pixels; a page scrolls, and a picture may be small.
int widestMinimum(const QWidget& page) {
    return isNarrowScreen(page) ? 220 : 380;
}

// Keeps the scroll bar's room free beside the page while it is hidden: nothing moves when it comes.
// A page that is too high with that room and not without it goes without.
void keepRoomForBar(const QScrollArea& area) {
    const QScrollBar* const bar = area.verticalScrollBar();
    auto keep = [page = area.widget(), bar, isKeeping = false](int min, int max) mutable {
        if (std::exchange(isKeeping, true))
            return;
        page->setContentsMargins(0, 0, max > min ? 0 : bar->sizeHint().width(), 0);
        isKeeping = false;
    };
    keep(bar->minimum(), bar->maximum());
    QObject::connect(bar, &QScrollBar::rangeChanged, area.widget(), keep);
}

// A page that scrolls where the window is smaller than its form. The control with the focus is
// never out of sight.
QScrollArea* scrolling(QWidget* page) {
    auto* const area = new QScrollArea;
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    keepRoomForBar(*area);
    area->setMinimumWidth(std::min(widestMinimum(*page), page->minimumSizeHint().width()));
    QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget*, QWidget* now) {
        if (now != nullptr && area->widget()->isAncestorOf(now))
            area->ensureWidgetVisible(now);
    });
    return area;
}

// An access key presses its button at once. Left alone it does so a tenth of a second later, when
// Enter may have led on and the same button stands on the next page. False where it is no such key.
bool pressByAccessKey(QObject* watched, const QShortcutEvent& event) {
    auto* const button = qobject_cast<QAbstractButton*>(watched);
    if (button == nullptr || event.isAmbiguous() || event.key() != button->shortcut())
        return false;
    if (button->isCheckable())
        button->setFocus(Qt::ShortcutFocusReason);
    button->click();
    return true;
}

bool isPlotFile(const QString& name) {
    return name.endsWith(u".plt", Qt::CaseInsensitive);
}

} // namespace

FrmMain::FrmMain(Workshop& workshop, FrameServices services)
    : m_workshop(workshop), m_services(std::move(services)), m_driver(workshop, m_controls, *this),
      m_lines(new StatusLines(*statusBar())), m_skipped(new SkippedLine(workshop, *m_lines)),
      m_opener(workshop, m_driver, *m_skipped, *this) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QString::fromUtf8(usualTitle));
    setAcceptDrops(true);
    buildWindow();
    new MainMenu(*this, *m_controls.tree, m_workshop.messages);
    connect(&m_driver, &WizardDriver::drawingWanted, this, [this] { ReadFile(); });
    connect(&m_driver, &WizardDriver::drawingLeft, m_skipped, [this] { m_skipped->show(0); });
    connect(&m_driver, &WizardDriver::toolsUnsaved, m_lines, &StatusLines::showToolsUnsaved);
    connect(&m_driver, &WizardDriver::answersUnkept, m_lines, &StatusLines::showAnswersUnkept);
    connect(&m_driver, &WizardDriver::drawingContinued, m_skipped,
            [this] { m_skipped->show(m_workshop.job.drawing.reading.lost); });
    connect(&m_driver, &WizardDriver::endWanted, this, &FrmMain::end);
    connect(m_skipped, &SkippedLine::drawingPrepared, this,
            [this](const std::filesystem::path& drawing) { ReadFile(drawing); });

    qApp->installEventFilter(this);
    m_driver.showStep(1);
    resize(QSize(1180, 760).boundedTo(screen()->availableSize() - roomForFrame));
}

void FrmMain::buildWindow() {
    m_controls.globals = new GlobalsPage(m_workshop, m_driver);
    m_controls.pens = new PenPage(m_workshop, m_driver);
    m_controls.order = new OrderPage(m_workshop);
    m_controls.header = new HeaderPage(m_workshop);
    auto* const piece = new CutPicture;
    m_controls.output = new OutputPage(m_workshop, *piece);
    m_controls.pages = new QStackedWidget;
    m_controls.pages->setObjectName(QStringLiteral("picPages"));
    m_controls.opening = new StartPage;
    connect(m_controls.opening, &StartPage::continueWanted, this,
            [this] { m_driver.continueDrawing(); });
    connect(m_controls.opening, &StartPage::drawingChosen, this,
            [this](const QString& name) { ReadFileLater(pathFromUtf8(name.toStdString())); });
    for (QWidget* const page :
         std::initializer_list<QWidget*>{m_controls.opening, m_controls.globals, m_controls.pens,
                                         m_controls.order, m_controls.header, m_controls.output})
        m_controls.pages->addWidget(scrolling(page));

    m_controls.preview = new PreviewWidget(m_workshop.job, m_workshop.tools, m_workshop.logger);
    m_controls.pictures = new QStackedWidget;
    m_controls.pictures->addWidget(m_controls.preview);
    m_controls.pictures->addWidget(piece);
    if (isNarrowScreen(*this))
        m_controls.pictures->setMinimumSize(std::max(100, 10 * fontMetrics().averageCharWidth()),
                                            100);
    auto* const split = new QSplitter(Qt::Horizontal);
    split->setObjectName(QStringLiteral("splMain"));
    split->addWidget(buildSide());
    split->addWidget(m_controls.pages);
    split->addWidget(m_controls.pictures);
    split->setChildrenCollapsible(false);
    split->setStretchFactor(0, 0);
    split->setStretchFactor(1, 0);
    split->setStretchFactor(2, 1);
    const int page = std::max(440, 20 * split->fontMetrics().height()); // wider in large letters
    split->setSizes({200, page, std::max(200, 980 - page)});
    readInOrder(*split);

    auto* const content = new QWidget;
    auto* const layout = new QVBoxLayout(content);
    layout->addWidget(split, 1);
    layout->addWidget(buildButtons());
    setCentralWidget(content);
}

QWidget* FrmMain::buildSide() {
    m_controls.steps = new StepList;
    m_controls.tree = new ColourTreeView;
    auto* const treeLabel = new QLabel(tr("Pens of the drawing"));
    treeLabel->setObjectName(QStringLiteral("lblColours"));
    m_controls.importedLabel = treeLabel;
    auto* const side = new QWidget;
    auto* const layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_controls.steps);
    layout->addSpacing(8);
    layout->addWidget(treeLabel);
    layout->addWidget(m_controls.tree, 1);
    layout->addStretch(); // where the tree is hidden
    treeLabel->hide();
    return side;
}

QWidget* FrmMain::buildButtons() {
    m_controls.back = button(QStringLiteral("cmdBack"), tr("&Back"), tr("To the page before"));
    m_controls.next =
        button(QStringLiteral("cmdNext"), tr("&Next"), tr("To the next page (Enter)"));
    m_controls.start =
        button(QStringLiteral("cmdStart"), tr("&Start"), tr("Choose a drawing (Enter)"));
    connect(m_controls.back, &QPushButton::clicked, this, [this] { m_driver.Wizard(-1); });
    connect(m_controls.next, &QPushButton::clicked, this, [this] { m_driver.Wizard(1); });
    connect(m_controls.start, &QPushButton::clicked, this, [this] { m_driver.Wizard(1); });
    auto* const row = new QWidget;
    auto* const layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch(1);
    layout->addWidget(m_controls.back);
    layout->addWidget(m_controls.next);
    layout->addWidget(m_controls.start);
    return row;
}

void FrmMain::bringToFront() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void FrmMain::Wizard(std::int16_t intDirection) {
    m_driver.Wizard(intDirection);
}

void FrmMain::ReadFile() {
    m_opener.ReadFile();
}

void FrmMain::ReadFile(const std::filesystem::path& drawing) {
    m_opener.ReadFile(drawing);
}

void FrmMain::ReadFileLater(const std::filesystem::path& drawing) {
    later(*this, [this, drawing] { ReadFile(drawing); });
}

void FrmMain::ReadFileWhenFree(const std::filesystem::path& drawing) {
    m_opener.ReadFileWhenFree(drawing);
}

void FrmMain::PrepareDrawing(const std::filesystem::path& source) {
    m_skipped->PrepareDrawing(source);
}

bool FrmMain::isReadyForSheet() {
    bool isReady = false;
    withQuietErrorTrap(m_workshop.logger, {"isReadyForSheet", "frmMain"}, [&] {
        isReady = torvik::isReadyForSheet(m_workshop.job, m_workshop.tools);
    });
    return isReady;
}

void FrmMain::showJobSheet() {
    m_driver.savePage();
    if (isReadyForSheet())
        torvik::showJobSheet(m_workshop, m_controls.output->target(), *this);
    else
        m_workshop.messages.intStdMsgBox(
            tr("A job sheet is made when every pen that is milled has its answers and a tool, "
               "and the order of the pens is set.")
                .toStdString(),
            styleExclamation, usualTitle);
}

QRect FrmMain::formPlace() const {
    const QWidget& pages = *m_controls.pages;
    const QPoint end = pages.mapToGlobal(pages.rect().bottomRight());
    return {frameGeometry().topLeft(), end};
}

void FrmMain::showHelpFor(const QWidget* control) {
    for (; control != nullptr; control = control->parentWidget()) {
        const int context = control->property(helpContextProperty).toInt();
        if (context > 0) {
            m_services.showHelp(context);
            return;
        }
    }
    m_services.showHelp(m_workshop.job.gintWizardStep);
}

bool FrmMain::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Shortcut)
        return pressByAccessKey(watched, *static_cast<QShortcutEvent*>(event));
    if (event->type() == QEvent::KeyPress && isActiveWindow() &&
        QApplication::activeModalWidget() == nullptr &&
        QApplication::activePopupWidget() == nullptr) {
        // A key that its control does not use is sent on to what it stands in: it is seen once.
        QWidget* const focused = QApplication::focusWidget();
        QWidget* const receiver = focused == nullptr ? this : focused;
        if (watched == receiver && receiver != menuBar())
            return previewKey(*static_cast<QKeyEvent*>(event), *receiver);
    }
    return QMainWindow::eventFilter(watched, event);
}

bool FrmMain::previewKey(QKeyEvent& event, QWidget& focused) {
    constexpr int keyCodeUp = 38;
    constexpr int keyCodeDown = 40;
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
        m_controls.order->KeyCheck(event.key() == Qt::Key_Up ? keyCodeUp : keyCodeDown);
        // There the arrows never move the focus instead.
        return m_workshop.job.gintWizardStep == 4;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (auto* const button = qobject_cast<QPushButton*>(&focused))
            button->click();
        else
            pressForward();
        return true;
    default:
        return false;
    }
}

void FrmMain::pressForward() {
    // A click does nothing while the button is closed.
    (m_controls.start->isVisible() ? m_controls.start : m_controls.next)->click();
}

void FrmMain::closeEvent(QCloseEvent* event) {
    if (m_closing || CheckClose())
        event->accept();
    else
        event->ignore();
}

bool FrmMain::CheckClose() {
    if (m_workshop.job.output.gblnUnsaved &&
        m_workshop.messages.intStdMsgBox(tr("Are you sure you want to close without saving\n"
                                            "the current file as G-codes?")
                                             .toStdString(),
                                         styleQuestion,
                                         tr("Exit from Torvik").toStdString()) != buttonYes)
        return false;
    end();
    return true;
}

void FrmMain::end() {
    m_closing = true;
    m_driver.stop();
    m_services.Shutdown();
}

void FrmMain::dragEnterEvent(QDragEnterEvent* event) {
    if (draggedSource(*event->mimeData()).isEmpty())
        return;
    event->acceptProposedAction();
    m_controls.opening->showDrag(true);
}

void FrmMain::dragLeaveEvent(QDragLeaveEvent* /*event*/) {
    m_controls.opening->showDrag(false);
}

void FrmMain::dropEvent(QDropEvent* event) {
    m_controls.opening->showDrag(false);
    const QString name = draggedSource(*event->mimeData());
    if (name.isEmpty())
        return;
    event->acceptProposedAction();
    const auto drawing = pathFromUtf8(name.toStdString());
    if (isPlotFile(name))
        ReadFileLater(drawing);
    else
        later(*this, [this, drawing] { PrepareDrawing(drawing); });
}

} // namespace torvik
