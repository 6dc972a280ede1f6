// SPDX-License-Identifier: MIT
#include "wizard/main_menu.h"

#include "base/files.h"
#include "wizard/frm_main.h"
#include "wizard/language_menu.h"
#include "wizard/later.h"
#include "wizard/recent_drawings.h"

#include <QFileInfo>
#include <QMenuBar>

namespace torvik {

MainMenu::MainMenu(FrmMain& window, QWidget& tree, StdMessageBox& messages)
    : QObject(&window), m_window(window), m_bar(*window.menuBar()) {
    buildFile();
    buildView(tree, messages);
    buildHelp();
}

void MainMenu::buildFile() {
    QMenu* const file = m_bar.addMenu(tr("&File"));
    file->setObjectName(QStringLiteral("mnuFile"));
    auto* const open = file->addAction(tr("&Open…"), QKeySequence::Open, this, [this] {
        later(m_window, [this] { m_window.ReadFile(); });
    });
    open->setObjectName(QStringLiteral("mnuFileOpen"));
    auto* const prepare =
        file->addAction(tr("&Prepare a Drawing…"), QKeySequence(tr("Ctrl+P")), this,
                        [this] { later(m_window, [this] { m_window.PrepareDrawing(); }); });
    prepare->setObjectName(QStringLiteral("mnuFilePrepare"));
    auto* const sheet =
        file->addAction(tr("&Job Sheet…"), QKeySequence(tr("Ctrl+J")), this,
                        [this] { later(m_window, [this] { m_window.showJobSheet(); }); });
    sheet->setObjectName(QStringLiteral("mnuSheet"));
    // Closed only while the menu is seen: the key says what is missing.
    connect(file, &QMenu::aboutToShow, sheet,
            [this, sheet] { sheet->setEnabled(m_window.isReadyForSheet()); });
    connect(file, &QMenu::aboutToHide, sheet, [sheet] {
        QMetaObject::invokeMethod(
            sheet, [sheet] { sheet->setEnabled(true); }, Qt::QueuedConnection);
    });
    m_recent = file->addMenu(tr("&Recent drawings"));
    m_recent->setObjectName(QStringLiteral("mnuFileRecent"));
    m_recent->setToolTipsVisible(true);
    connect(file, &QMenu::aboutToShow, this, &MainMenu::fillRecent);
    file->addSeparator();
    auto* const exit = file->addAction(tr("E&xit"), QKeySequence(tr("Ctrl+Q")), this,
                                       [this] { later(m_window, [this] { m_window.close(); }); });
    exit->setObjectName(QStringLiteral("mnuFileExit"));
}

void MainMenu::buildView(QWidget& tree, StdMessageBox& messages) {
    QMenu* const view = m_bar.addMenu(tr("&View"));
    view->setObjectName(QStringLiteral("mnuView"));
    QAction* const pens = view->addAction(tr("&Pens of the drawing"), &tree, &QWidget::setVisible);
    pens->setObjectName(QStringLiteral("mnuViewTree"));
    pens->setCheckable(true);
    pens->setChecked(true);
    QAction* const whole =
        view->addAction(tr("&Full screen"), QKeySequence(Qt::Key_F11), this, [this](bool on) {
            m_window.setWindowState(m_window.windowState().setFlag(Qt::WindowFullScreen, on));
        });
    whole->setObjectName(QStringLiteral("mnuViewFullScreen"));
    whole->setCheckable(true);
    QMenu* const languages = view->addMenu(tr("&Language (from the next start)"));
    languages->setObjectName(QStringLiteral("mnuLanguage"));
    addLanguages(*languages, messages);
}

void MainMenu::buildHelp() {
    QMenu* const help = m_bar.addMenu(tr("&Help"));
    help->setObjectName(QStringLiteral("mnuHelp"));
    auto* const contents = help->addAction(tr("&Contents"), QKeySequence(Qt::Key_F1), this, [this] {
        m_window.showHelpFor(QApplication::focusWidget());
    });
    contents->setObjectName(QStringLiteral("mnuHelpContents"));
    auto* const about = help->addAction(
        tr("&About Torvik"), this, [this] { later(m_window, [this] { m_window.showAbout(); }); });
    about->setObjectName(QStringLiteral("mnuHelpAbout"));
}

void MainMenu::fillRecent() {
    m_recent->clear();
    const QStringList names = recentDrawings();
    for (qsizetype i = 0; i < names.size(); ++i) {
        QAction* const action = m_recent->addAction(
            tr("&%1  %2").arg(i + 1).arg(QFileInfo(names[i]).fileName().replace('&', "&&")), this,
            [this, name = names[i]] { m_window.ReadFileLater(pathFromUtf8(name.toStdString())); });
        action->setToolTip(names[i]);
    }
    m_recent->setEnabled(!names.isEmpty());
}

} // namespace torvik
