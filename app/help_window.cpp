// SPDX-License-Identifier: MIT
#include "app/help_window.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QSplitter>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>

namespace torvik {
namespace {

const QString helpFolder = QStringLiteral(":/help");
constexpr int fileRole = Qt::UserRole;
constexpr int wordsRole = Qt::UserRole + 1;

// A topic's file is named after its number ("topic-090.html"), so that the contents follow it.
QString fileName(int helpContext) {
    return helpFolder + QStringLiteral("/topic-%1.html").arg(helpContext, 3, 10, QChar(u'0'));
}

QString contentsOf(const QString& file) {
    QFile source(file);
    return source.open(QIODevice::ReadOnly) ? QString::fromUtf8(source.readAll()) : QString();
}

} // namespace

HelpWindow::HelpWindow(QWidget* parent)
    : QMainWindow(parent), m_search(new QLineEdit), m_contents(new QListWidget),
      m_page(new QTextBrowser) {
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
    m_page->setSearchPaths({helpFolder});
    m_page->document()->setDocumentMargin(16);

    auto* const side = new QWidget;
    auto* const sideLayout = new QVBoxLayout(side);
    sideLayout->setContentsMargins(0, 0, 0, 0);
    sideLayout->addWidget(m_search);
    sideLayout->addWidget(m_contents, 1);
    auto* const split = new QSplitter;
    split->addWidget(side);
    split->addWidget(m_page);
    split->setStretchFactor(1, 1);
    split->setSizes({220, 460});
    split->setChildrenCollapsible(false);
    setCentralWidget(split);
    resize(700, 520);

    fillContents();
    connect(
        m_contents, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
            if (item != nullptr)
                m_page->setSource(QUrl(QStringLiteral("qrc") + item->data(fileRole).toString()));
        });
    connect(m_search, &QLineEdit::textChanged, this, &HelpWindow::filterContents);
    auto* const closeKey = new QAction(this);
    closeKey->setShortcut(Qt::Key_Escape);
    connect(closeKey, &QAction::triggered, this, &QWidget::close);
    addAction(closeKey);
}

void HelpWindow::fillContents() {
    const QDir folder(helpFolder);
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

void HelpWindow::filterContents(const QString& words) {
    const QString wanted = words.trimmed().toCaseFolded();
    for (int i = 0; i < m_contents->count(); ++i) {
        QListWidgetItem* const item = m_contents->item(i);
        item->setHidden(!item->data(wordsRole).toString().contains(wanted));
    }
}

QString HelpWindow::topicFile(int helpContext) {
    return fileName(helpContext);
}

void HelpWindow::showTopic(int helpContext) {
    m_search->clear();
    openFile(topicFile(helpContext));
    showNormal();
    raise();
    activateWindow();
}

void HelpWindow::openFile(const QString& file) {
    for (int i = 0; i < m_contents->count(); ++i) {
        if (m_contents->item(i)->data(fileRole).toString() == file) {
            m_contents->setCurrentRow(i);
            return;
        }
    }
    m_contents->setCurrentRow(0);
}

} // namespace torvik
