// SPDX-License-Identifier: MIT
// How far a program is written, and the way to end that. It shows itself where the writing takes
// a while.
#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

#include <cstdint>

namespace torvik {

class WritingDialog : public QProgressDialog {
    Q_OBJECT

public:
    // lines: how many the program will have, up to 20 million.
    WritingDialog(std::int64_t lines, QWidget* parent);

    // So many lines are written. False where the user has ended the writing.
    bool goOn(std::int64_t written);

private:
    QElapsedTimer m_since;
};

} // namespace torvik
