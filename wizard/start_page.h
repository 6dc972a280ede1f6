// SPDX-License-Identifier: MIT
// picOpening, the page of step 1: what the program does and how to begin.
#pragma once

#include <QWidget>

namespace torvik {

class StartPage : public QWidget {
    Q_OBJECT

public:
    StartPage();
};

} // namespace torvik
