// SPDX-License-Identifier: MIT
// The desktop program's start: one running copy, the main window at step 1, the tool list loaded.
#pragma once

class QApplication;

namespace torvik {

// Runs the program until Shutdown and returns its exit code.
int runDesktop(QApplication& application);

} // namespace torvik
