// SPDX-License-Identifier: MIT
// The desktop program's start: one running copy, the main window at step 1, the tool list loaded.
#pragma once

namespace torvik {

// Runs the program until Shutdown and returns its exit code. Needs a QApplication.
int runDesktop();

} // namespace torvik
