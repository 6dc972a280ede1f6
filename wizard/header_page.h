// SPDX-License-Identifier: MIT
// Step 5: who makes the part, of what, and the billet's size.
#pragma once

#include "check/sense/sense.h"

#include <QWidget>

#include <array>

class QLineEdit;

namespace torvik {

class QuietLine;
struct Answers;
struct Workshop;

class HeaderPage : public QWidget {
    Q_OBJECT

public:
    explicit HeaderPage(Workshop& workshop, QWidget* parent = nullptr);

    // Fills the boxes txtHead0 to txtHead8 from the job, an empty date with today's and an empty
    // name of part from the drawing's name, and gives the focus to the first empty box.
    void fill();
    // The boxes as they stand, into gstrHeader.
    void readBoxes();
    // The same into answers that are only looked at.
    void storeTyped(Answers& answers) const;
    // Whether every box that must be filled is; else says which is not and gives it the focus.
    bool blnHeaderDone();

private:
    // What the billet must hold, and what of that it does not.
    void sayBillet();

    Workshop& m_workshop;
    std::array<QLineEdit*, 9> m_boxes{};
    QuietLine* m_quiet = nullptr;
    check::Reach m_reach; // of the job when the page was filled
};

} // namespace torvik
