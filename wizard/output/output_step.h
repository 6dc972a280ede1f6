// SPDX-License-Identifier: MIT
// The road from the output page to the written file: program number, diskette, Save dialog,
// writing, keeping of the answers, and the menu that follows.
#pragma once

#include <QCoreApplication>

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <utility>
#include <vector>

class QWidget;

namespace torvik {

struct Dialect;
struct ProgramSize;
class TrialRun;
struct Workshop;

// What the user wants after the output.
enum class AfterOutput {
    nothing,   // not written, or the menu was closed without a choice
    openOther, // "Open"
    saveOther, // "Save"
    close,     // "Close"
};

// Whether something that is to be milled has no tool; the user is then asked to choose one.
bool asksForTool(Workshop& workshop);

class OutputStep {
    Q_DECLARE_TR_FUNCTIONS(OutputStep)

public:
    // Dialogs are shown over the window. The trial is finished before anything is written.
    // `answersKept` is called when a program was written and its answers are saved.
    OutputStep(Workshop& workshop, TrialRun& trial, QWidget& window,
               std::function<void()> answersKept)
        : m_workshop(workshop), m_trial(trial), m_window(window),
          m_answersKept(std::move(answersKept)) {}

    // Asks what the target needs to know and calls WriteFile. gblnUnsaved becomes False only when
    // a file was really written.
    AfterOutput run(std::int16_t target);

    // Writes the program, keeps the answers and shows frmMenu. Targets without a program number
    // ask for the file with strGetOutputFile.
    AfterOutput WriteFile(std::int16_t target, std::int16_t number);

    // Whether the diskette drive's folder exists and can be written.
    bool blnDisketteReady() const;

private:
    // Whether the program's size is no hindrance: what is very long is asked about.
    bool agreesToSize(const ProgramSize& size);
    // Whether nothing dangerous is found in the program, or the user wants it all the same.
    bool agreesToFindings(std::int16_t target);
    // The program number, 0 where the user cancelled.
    std::int16_t askForNumber(const Dialect& dialect);
    bool waitForDiskette();
    bool mayOverwrite(const std::string& name);
    // False where the user gave up or the writing failed.
    bool write(std::int16_t target, std::int16_t number, const std::filesystem::path& file);
    // The program as the user knows it, and where it really is, with the text beside it.
    AfterOutput showMenu(const std::string& writtenFile,
                         const std::vector<std::filesystem::path>& files);

    Workshop& m_workshop;
    TrialRun& m_trial;
    QWidget& m_window;
    std::function<void()> m_answersKept;
    std::int64_t m_lines = 0; // of the program that is written
};

} // namespace torvik
