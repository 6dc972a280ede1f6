// SPDX-License-Identifier: MIT
// frmMain, the main window: it builds the pages and controls, sees the keys first and closes the
// program. The steps are driven by WizardDriver, drawings opened by DrawingOpener.
#pragma once

#include "wizard/drawing_opener.h"
#include "wizard/host/frame_services.h"
#include "wizard/host/workshop.h"
#include "wizard/main_controls.h"
#include "wizard/wizard_driver.h"

#include <QMainWindow>

#include <filesystem>

class QKeyEvent;

namespace torvik {

class SkippedLine;
class StatusLines;

class FrmMain : public QMainWindow {
    Q_OBJECT

public:
    FrmMain(Workshop& workshop, FrameServices services);

    // Saves and checks the page on show and lays out the next: -1 for Back, 1 for Next and Start.
    void Wizard(std::int16_t intDirection);
    // Asks for a drawing, imports it and lays out step 2. Cancelling changes nothing.
    void ReadFile();
    // The same for a drawing that is named already (recent, dropped).
    void ReadFile(const std::filesystem::path& drawing);
    // The same when the running event has ended; a dialog that waits then is not pushed aside.
    void ReadFileLater(const std::filesystem::path& drawing);
    // The same as soon as no dialog and no menu is open.
    void ReadFileWhenFree(const std::filesystem::path& drawing);
    // Opens the dialog that makes drawings of other programs readable, with the one that is named
    // (dropped) or else the drawing that is open, and afterwards the drawing that was saved there,
    // where the user wants it.
    void PrepareDrawing(const std::filesystem::path& source = {});
    // Whether the job says all that a job sheet needs, and the dialog that saves or prints one.
    bool isReadyForSheet();
    void showJobSheet();
    // Ends the program, after a question where a program has not been written yet. False where
    // the user stays.
    bool CheckClose();
    // Restores and raises the window for a second start of the program.
    void bringToFront();
    // Where the steps and the page stand on the screen: what is not to be covered while it is
    // filled in.
    QRect formPlace() const;
    // Opens the topic of the control or of what it stands in; else that of the step.
    void showHelpFor(const QWidget* control);
    void showAbout() { m_services.showAbout(); }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    // The form previews the keys, whichever control has the focus.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildWindow();
    QWidget* buildSide();
    QWidget* buildButtons();
    bool previewKey(QKeyEvent& event, QWidget& focused);
    void pressForward();
    void end();

    Workshop& m_workshop;
    FrameServices m_services;
    MainControls m_controls;
    WizardDriver m_driver;
    StatusLines* m_lines;
    SkippedLine* m_skipped;
    DrawingOpener m_opener;
    bool m_closing = false;
};

} // namespace torvik
