// SPDX-License-Identifier: MIT
// The help window: one topic for each help context number and one for each step, written as HTML
// files in help/ and built into the program.
#pragma once

#include <QMainWindow>

class QLineEdit;
class QListWidget;
class QTextBrowser;

namespace torvik {

class HelpWindow : public QMainWindow {
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent = nullptr);

    // Opens the window at the topic of the help context number, or at the contents where there is
    // none.
    void showTopic(int helpContext);

    // Where the topic's file is.
    static QString topicFile(int helpContext);

private:
    void fillContents();
    void filterContents(const QString& words);
    void openFile(const QString& file);

    QLineEdit* m_search;
    QListWidget* m_contents;
    QTextBrowser* m_page;
};

} // namespace torvik
