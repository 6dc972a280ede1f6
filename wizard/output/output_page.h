// SPDX-License-Identifier: MIT
// Step 6: the control to write for, and where the diskette drive leads.
#pragma once

#include <QWidget>

#include <cstdint>

class QButtonGroup;
class QLabel;

namespace torvik {

struct Workshop;

class OutputPage : public QWidget {
    Q_OBJECT

public:
    explicit OutputPage(Workshop& workshop, QWidget* parent = nullptr);

    // The code of the option button optOutput1 to optOutput4 that is set; one always is.
    std::int16_t target() const;
    // Remembers the target for the next time.
    void rememberTarget();
    // On entry to the step: what the page says of drive A: and of texts that the program cannot
    // hold, and the focus on the chosen target.
    void enter();

private:
    QWidget* buildDrive();
    void changeDrive();
    void showDrive();
    void warnOfComments();

    Workshop& m_workshop;
    QButtonGroup* m_targets = nullptr;
    QLabel* m_drive = nullptr;
    QLabel* m_comments = nullptr;
};

} // namespace torvik
