// SPDX-License-Identifier: MIT
// The road from the output page to the written file: program number, diskette, Save dialog,
// writing, saving of the answers, and the menu that follows.
#pragma once

#include <QWidget>

#include <cstdint>
#include <filesystem>

namespace torvik {

struct Workshop;

// What the user wants after the output.
enum class AfterOutput {
    nothing,   // not written, or the menu was closed without a choice
    openOther, // "Open"
    saveOther, // "Save"
    close,     // "Close"
};

class OutputStep {
public:
    // Dialogs are shown over the window.
    OutputStep(Workshop& workshop, QWidget& window);

    // Asks what the target needs to know and calls WriteFile. gblnUnsaved becomes False only when
    // a file was really written.
    AfterOutput run(std::int16_t target);

    // Writes the program, keeps the answers and shows frmMenu. An empty path asks for the file
    // with strGetOutputFile.
    AfterOutput WriteFile(std::int16_t target, std::int16_t number);

    // The Save dialog of the target; an empty path when it is cancelled.
    std::filesystem::path strGetOutputFile(const std::string& proposedName, std::int16_t target);

    // Whether the diskette drive's folder exists and can be written.
    bool blnDisketteReady() const;

private:
    Workshop& m_workshop;
    QWidget& m_window;
};

} // namespace torvik
