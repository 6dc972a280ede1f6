// SPDX-License-Identifier: MIT
// What the main window asks of the application frame, handed in at the program's start.
#pragma once

#include <functional>

namespace torvik {

struct FrameServices {
    // Opens the help window at the topic of a help context number; 1 to 6 are the steps.
    std::function<void(int helpContext)> showHelp;
    std::function<void()> showAbout;
    // Unloads the windows and ends the program.
    std::function<void()> Shutdown;
};

} // namespace torvik
