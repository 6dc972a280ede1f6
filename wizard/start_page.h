// SPDX-License-Identifier: MIT
// picOpening, the page of step 1: what the program does, how to begin, and the way back to a
// drawing that was left.
#pragma once

#include <QWidget>

class QPushButton;

namespace torvik {

class StartPage : public QWidget {
    Q_OBJECT

public:
    StartPage();

    // Offers to continue with the drawing (its full name); none is offered where it is empty.
    void offerDrawing(const QString& drawing);

signals:
    void continueWanted();

private:
    QPushButton* m_continue;
};

} // namespace torvik
