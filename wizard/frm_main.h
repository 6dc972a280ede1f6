// SPDX-License-Identifier: MIT
// frmMain, the main window: the six-step wizard over the one job. Its pages do their own work;
// here stands what joins them.
#pragma once

#include "answers/kept_answers.h"
#include "wizard/host/frame_services.h"
#include "wizard/host/wizard_host.h"
#include "wizard/host/workshop.h"

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

#include <filesystem>

class QKeyEvent;
class QLabel;
class QMenu;
class QPushButton;
class QStackedWidget;

namespace torvik {

class ColourTreeView;
class GlobalsPage;
class HeaderPage;
class OrderPage;
class OutputPage;
class PenPage;
class PreviewWidget;
class StepList;
class ToolsOfGroups;

class FrmMain : public QMainWindow, public WizardHost {
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
    // Opens the dialog that makes drawings of other programs readable, with the one that is named
    // (dropped) or else the drawing that is open, and afterwards the drawing that was saved there,
    // where the user wants it.
    void PrepareDrawing(const std::filesystem::path& source = {});
    // Ends the program, after a question where a program has not been written yet. False where
    // the user stays.
    bool CheckClose();
    // Restores and raises the window for a second start of the program.
    void bringToFront();
    // Opens the topic of the control or of what it stands in; else that of the step.
    void showHelpFor(const QWidget* control);

    void setNextEnabled(bool enabled) override;
    void updateTree() override;
    void PlotLines() override;
    void clearPreview() override;
    void plotBlink(const std::vector<std::int16_t>& paths, bool visible) override;
    void startFlashing(int milliseconds) override;
    void stopFlashing() override;
    void startToolSelection() override;
    void leavePensBackward() override;
    void leavePensForward() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    // The form previews the keys, whichever control has the focus.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildWindow();
    QWidget* buildSide();
    QWidget* buildStartPage();
    QWidget* buildButtons();
    void buildMenu();
    void fillRecentMenu();
    void buildSkippedLine();

    void fromStep2(std::int16_t direction);
    void fromStep3(std::int16_t direction);
    void fromStep4(std::int16_t direction);
    void fromStep5(std::int16_t direction);
    void fromStep6(std::int16_t direction);

    bool agreesToOpen();
    void importFrom(const std::filesystem::path& drawing);
    void layOutImported();
    void returnToStart();
    void warnOfEmptyDrawing();
    // Says in the status bar how much of the drawing was not read; 0 hides the line.
    void showSkipped(long instructions);
    void writeOutput();
    // tmrToolSelect has run out: the tool selection, then PenPage::ToolSelection.
    void selectTool();
    void warnOfToolChanges(const ToolsOfGroups& before, std::int16_t chosen);
    void showStep(std::int16_t step);
    bool previewKey(QKeyEvent& event, QWidget& focused);
    void pressForward();
    // Runs the work when the running event has ended: a dialog never opens inside one. What is
    // asked for while a dialog waits already (a second click, a drop) is passed over.
    template <typename Work>
    void later(Work work) {
        QTimer::singleShot(0, this, [work = std::move(work)] {
            if (QApplication::activeModalWidget() == nullptr)
                work();
        });
    }

    Workshop& m_workshop;
    FrameServices m_services;
    KeptAnswers m_kept;
    bool m_closing = false;

    QTimer m_flash;
    QTimer m_toolSelect;
    StepList* m_steps = nullptr;
    ColourTreeView* m_tree = nullptr;
    QStackedWidget* m_pages = nullptr;
    QLabel* m_importedLabel = nullptr;
    GlobalsPage* m_globals = nullptr;
    PenPage* m_pens = nullptr;
    OrderPage* m_order = nullptr;
    HeaderPage* m_header = nullptr;
    OutputPage* m_output = nullptr;
    PreviewWidget* m_preview = nullptr;
    QPushButton* m_back = nullptr;
    QPushButton* m_next = nullptr;
    QPushButton* m_start = nullptr;
    QMenu* m_recent = nullptr;
    QPushButton* m_skipped = nullptr;
};

} // namespace torvik
