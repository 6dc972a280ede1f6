// SPDX-License-Identifier: MIT
// The help window: one topic for each help context number and one for each step, written as HTML
// files in help/ and built into the program. It stays open beside the program, and can be read
// while a dialog waits.
#pragma once

#include <QMainWindow>

class QLineEdit;
class QListWidget;
class QSplitter;
class QTextBrowser;

namespace torvik {

class HelpWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent = nullptr);

    // Opens the window at the topic of the help context number, or at the first one where there
    // is none. A window that was closed opens beside the form, a place on the screen, if one is
    // given.
    void showTopic(int helpContext, const QRect& form = {});

    // Where the topic's file is.
    static QString topicFile(int helpContext);

private:
    void layOut();
    void shareWidth(int width);
    void connectControls();
    void fillContents();
    void filterContents(const QString& words);
    void openFile(const QString& file);
    // The contents mark the topic on show, whichever way it came.
    void markTopic(const QUrl& source);
    void openBeside(const QRect& form);
    void comeToFront();

    QLineEdit* m_search;
    QListWidget* m_contents;
    QTextBrowser* m_page;
    QSplitter* m_split;
    QAction* m_back;
    QAction* m_forward;
};

} // namespace torvik
