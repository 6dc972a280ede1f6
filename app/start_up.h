// SPDX-License-Identifier: MIT
// The desktop program's start: one running copy, the main window at step 1, the tool list loaded.
#pragma once

#include <QString>

namespace torvik {

// Runs the program until Shutdown and returns its exit code. Needs a QApplication. A drawing that
// is named is opened at once; where a copy runs already, there.
int runDesktop(const QString& drawing = {});

} // namespace torvik
