// SPDX-License-Identifier: MIT
// The menu, help, the keys that the form sees first, and closing.
#include "base/files.h"
#include "forms/help_key.h"
#include "wizard/colour_tree_view.h"
#include "wizard/frm_main.h"
#include "wizard/order_page.h"
#include "wizard/pens/pen_controls.h"
#include "wizard/recent_drawings.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPushButton>

namespace torvik {

void FrmMain::buildMenu() {
    QMenu* const file = menuBar()->addMenu(tr("&File"));
    file->setObjectName(QStringLiteral("mnuFile"));
    auto* const open = file->addAction(tr("&Open…"), QKeySequence::Open, this,
                                       [this] { later([this] { ReadFile(); }); });
    open->setObjectName(QStringLiteral("mnuFileOpen"));
    auto* const prepare = file->addAction(tr("&Prepare a Drawing…"), QKeySequence(tr("Ctrl+P")),
                                          this, [this] { later([this] { PrepareDrawing(); }); });
    prepare->setObjectName(QStringLiteral("mnuFilePrepare"));
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
        view->addAction(tr("&Full screen"), QKeySequence(Qt::Key_F11), this, [this](bool on) {
            setWindowState(windowState().setFlag(Qt::WindowFullScreen, on));
        });
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
            tr("&%1  %2").arg(i + 1).arg(QFileInfo(names[i]).fileName().replace('&', "&&")), this,
            [this, name = names[i]] { ReadFileLater(pathFromUtf8(name.toStdString())); });
        action->setToolTip(names[i]);
    }
    m_recent->setEnabled(!names.isEmpty());
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
        m_order->KeyCheck(event.key() == Qt::Key_Up ? keyCodeUp : keyCodeDown);
        // There the arrows never move the focus instead.
        return m_workshop.job.gintWizardStep == 4;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (event.isAutoRepeat()) // a key held down is no second step
            return true;
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
    (m_start->isVisible() ? m_start : m_next)->click();
}

void FrmMain::closeEvent(QCloseEvent* event) {
    if (m_closing || CheckClose())
        event->accept();
    else
        event->ignore();
}

bool FrmMain::CheckClose() {
    if (m_workshop.job.output.gblnUnsaved &&
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

} // namespace torvik
