// SPDX-License-Identifier: MIT
// The lines of the status bar, one below the other. The bar is there while one of them is shown.
#pragma once

#include <QWidget>

class QLabel;
class QStatusBar;

namespace torvik {

class StatusLines : public QWidget {
    Q_OBJECT

public:
    explicit StatusLines(QStatusBar& bar);

    // Adds a line, hidden; showing and hiding it shows and hides the bar.
    void addLine(QWidget& line);
    // The line that says that the workshop's tools could not be saved.
    void showToolsUnsaved(bool unsaved);
    // The line that says that the answers would not survive the program's end.
    void showAnswersUnkept(bool unkept);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel* addText(const QString& name);

    QStatusBar& m_bar;
    QLabel* m_toolsUnsaved;
    QLabel* m_answersUnkept;
};

} // namespace torvik
