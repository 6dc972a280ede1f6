// SPDX-License-Identifier: MIT
// The standard message box as the procedures see it: a text, a style and a title in, the button
// pressed out. The program hands in one that shows a window.
#pragma once

#include <cstdint>
#include <string>

namespace torvik {

// Styles, added up from buttons, icon and default button.
inline constexpr int styleExclamation = 48;        // OK button
inline constexpr int styleRetryExclamation = 53;   // Retry and Cancel
inline constexpr int styleQuestion = 36;           // Yes and No
inline constexpr int styleQuestionDefaultNo = 260; // Yes and No, No as default

// The buttons that can be pressed.
inline constexpr int buttonOk = 1;
inline constexpr int buttonCancel = 2;
inline constexpr int buttonRetry = 4;
inline constexpr int buttonYes = 6;
inline constexpr int buttonNo = 7;

inline constexpr const char* usualTitle = "Torvik";

class StdMessageBox {
public:
    StdMessageBox() = default;
    StdMessageBox(const StdMessageBox&) = delete;
    StdMessageBox& operator=(const StdMessageBox&) = delete;
    virtual ~StdMessageBox() = default;

    // Shows the text (UTF-8, lines at "\n") until a button is pressed, and returns that button.
    // Closing the window counts as Cancel, or as No where there is no Cancel.
    virtual int intStdMsgBox(const std::string& text, int style, const std::string& title) = 0;
};

} // namespace torvik
