// SPDX-License-Identifier: MIT
#include "app/help_window.h"

#include "app/beside.h"
#include "app/resources.h"
#include "forms/reading_order.h"
#include "languages/language.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QScreen>
#include <QSplitter>
#include <QStyle>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTextOption>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include <algorithm>

namespace torvik {
namespace {

constexpr QSize usualSize(860, 620);
constexpr QSize leastSize(420, 400); // with its frame
constexpr int widestContents = 270;
// The topics in the language of the program.
QString helpFolder() {
    const QString english = QStringLiteral(":/help");
    const QString own = english + u'/' + languageInUse();
    return QDir(own).exists() ? own : english;
}

constexpr int fileRole = Qt::UserRole;
constexpr int wordsRole = Qt::UserRole + 1;

QUrl urlOf(const QString& file) {
    return QUrl(QStringLiteral("qrc") + file);
}

QString contentsOf(const QString& file) {
    QFile source(file);
    return source.open(QIODevice::ReadOnly) ? QString::fromUtf8(source.readAll()) : QString();
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QMainWindow(parent), m_search(new QLineEdit), m_contents(new QListWidget),
      m_page(new QTextBrowser), m_split(new QSplitter), m_back(new QAction(tr("←  &Back"), this)),
      m_forward(new QAction(tr("&Forward  →"), this)) {
    loadResources();
    setObjectName(QStringLiteral("frmHelp"));
    setWindowTitle(tr("Torvik Help"));
    m_search->setObjectName(QStringLiteral("txtHelpSearch"));
    m_search->setPlaceholderText(tr("Search the topics"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    m_contents->setObjectName(QStringLiteral("lstHelp"));
    m_contents->setAccessibleName(tr("Topics"));
    m_page->setObjectName(QStringLiteral("txtHelp"));
    m_page->setAccessibleName(tr("Topic"));
    m_page->document()->setDocumentMargin(16);
    m_page->setWordWrapMode(QTextOption::WordWrap); // narrow columns of a table break no word
    m_page->document()->setDefaultStyleSheet(QStringLiteral(
        "table { margin-top: 6px; margin-bottom: 8px; } li { margin-bottom: 4px; }"));
    m_contents->setSpacing(1);
    m_contents->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // long titles end in "…"
    layOut();
    connectControls();
    fillContents();
}

void HelpWindow::layOut() {
    auto* const bar = addToolBar(tr("Pages"));
    bar->setMovable(false);
    bar->addActions({m_back, m_forward});
    setContextMenuPolicy(Qt::NoContextMenu); // nothing could bring a hidden tool bar back

    auto* const side = new QWidget;
    auto* const sideLayout = new QVBoxLayout(side);
    sideLayout->setContentsMargins(0, 0, 0, 0);
    sideLayout->addWidget(m_search);
    sideLayout->addWidget(m_contents, 1);
    QSplitter* const split = m_split;
    split->addWidget(side);
    split->addWidget(m_page);
    split->setStretchFactor(1, 1);
    shareWidth(usualSize.width());
    readInOrder(*split);
    split->setChildrenCollapsible(false);
    setCentralWidget(split);
    resize(usualSize);
}

// A narrow window leaves the room to the topic.
void HelpWindow::shareWidth(int width) {
    const int contents = std::min(widestContents, width / 3);
    m_split->setSizes({contents, width - contents});
}

void HelpWindow::connectControls() {
    connect(m_contents, &QListWidget::currentItemChanged, this,
            [this](const QListWidgetItem* item) {
                if (item != nullptr && m_page->source() != urlOf(item->data(fileRole).toString()))
                    m_page->setSource(urlOf(item->data(fileRole).toString()));
            });
    connect(m_page, &QTextBrowser::sourceChanged, this, &HelpWindow::markTopic);
    connect(m_search, &QLineEdit::textChanged, this, &HelpWindow::filterContents);

    m_back->setShortcut(QKeySequence::Back);
    m_forward->setShortcut(QKeySequence::Forward);
    m_back->setEnabled(false);
    m_forward->setEnabled(false);
    connect(m_back, &QAction::triggered, m_page, &QTextBrowser::backward);
    connect(m_forward, &QAction::triggered, m_page, &QTextBrowser::forward);
    connect(m_page, &QTextBrowser::backwardAvailable, m_back, &QAction::setEnabled);
    connect(m_page, &QTextBrowser::forwardAvailable, m_forward, &QAction::setEnabled);

    auto* const closeKey = new QAction(this);
    closeKey->setShortcut(Qt::Key_Escape);
    connect(closeKey, &QAction::triggered, this, &QWidget::close);
    addAction(closeKey);
}

void HelpWindow::fillContents() {
    const QDir folder(helpFolder());
    for (const QString& name :
         folder.entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name)) {
        const QString file = folder.filePath(name);
        QTextDocument topic;
        topic.setHtml(contentsOf(file));
        auto* const item =
            new QListWidgetItem(topic.metaInformation(QTextDocument::DocumentTitle), m_contents);
        item->setData(fileRole, file);
        item->setData(wordsRole, topic.toPlainText().toCaseFolded());
    }
}

// Shows the topics that hold every word.
void HelpWindow::filterContents(const QString& words) {
    const QStringList wanted = words.toCaseFolded().split(u' ', Qt::SkipEmptyParts);
    for (int i = 0; i < m_contents->count(); ++i) {
        QListWidgetItem* const item = m_contents->item(i);
        const QString text = item->data(wordsRole).toString();
        item->setHidden(!std::all_of(wanted.begin(), wanted.end(),
                                     [&](const QString& word) { return text.contains(word); }));
    }
}

QString HelpWindow::topicFile(int helpContext) {
    return helpFolder() + QStringLiteral("/topic-%1.html").arg(helpContext, 3, 10, QChar(u'0'));
}

void HelpWindow::showTopic(int helpContext, const QRect& form) {
    m_search->clear();
    openFile(topicFile(helpContext));
    if (!isVisible() && !form.isNull())
        openBeside(form);
    comeToFront();
}

void HelpWindow::openFile(const QString& file) {
    const bool exists = QFile::exists(file) || m_contents->count() == 0;
    m_page->setSource(urlOf(exists ? file : m_contents->item(0)->data(fileRole).toString()));
}

void HelpWindow::markTopic(const QUrl& source) {
    for (int i = 0; i < m_contents->count(); ++i)
        if (urlOf(m_contents->item(i)->data(fileRole).toString()) == source)
            m_contents->setCurrentRow(i);
}

void HelpWindow::openBeside(const QRect& form) {
    const QScreen* const screen = QGuiApplication::screenAt(form.center());
    if (screen == nullptr)
        return;
    // The system's frame is not known before the window is shown.
    const int title = style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, this);
    const int border = style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const QSize frame(2 * border, title + border);
    const QRect place =
        placeBeside(form, screen->availableGeometry(), usualSize + frame, leastSize);
    resize(place.size() - frame);
    move(place.topLeft());
    shareWidth(width());
}

void HelpWindow::comeToFront() {
    const QWidget* const dialog = QApplication::activeModalWidget();
    winId(); // makes the window
    QWindow* const above = dialog != nullptr ? dialog->window()->windowHandle() : nullptr;
    if (windowHandle()->transientParent() != above) {
        // A window that belongs to the waiting dialog is not blocked by it. That is looked up when
        // the window is shown.
        hide();
        windowHandle()->setTransientParent(above);
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

} // namespace torvik
