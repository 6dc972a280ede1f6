// SPDX-License-Identifier: MIT
// Opening a drawing: the question about the program that is not written yet, the file dialog, the
// import with the answers kept for the drawing, and the list of recent drawings.
#pragma once

#include "wizard/host/workshop.h"

#include <QObject>

#include <filesystem>

class QWidget;

namespace torvik {

class SkippedLine;
class WizardDriver;

class DrawingOpener : public QObject {
    Q_OBJECT

public:
    // `window` gets the drawing's name as its title, and dialogs stand over it.
    DrawingOpener(Workshop& workshop, WizardDriver& driver, SkippedLine& skipped, QWidget& window);

    // Asks for a drawing, imports it and lays out step 2. Cancelling changes nothing. A drawing of
    // another kind goes to the dialog that prepares it.
    void ReadFile();
    // The same for a drawing that is named already (recent, dropped).
    void ReadFile(const std::filesystem::path& drawing);
    // The same as soon as no dialog and no menu is open. Of several drawings the last one counts.
    void ReadFileWhenFree(const std::filesystem::path& drawing);

private:
    void openWaiting();
    bool agreesToOpen();
    void importFrom(const std::filesystem::path& drawing);

    Workshop& m_workshop;
    WizardDriver& m_driver;
    SkippedLine& m_skipped;
    QWidget& m_window;
    std::filesystem::path m_waiting; // for the end of a dialog; empty: none
};

} // namespace torvik
