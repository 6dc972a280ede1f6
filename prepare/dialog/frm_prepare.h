// SPDX-License-Identifier: MIT
// frmPrepare: a drawing of another program is opened, prepared with the options on show, looked at
// before and after, and saved. What goes wrong is said in the dialog, which then saves nothing. The
// work is done in a thread of its own; a change of an option counts once it has rested a moment.
#pragma once

#include "forms/latest_work.h"
#include "prepare/dialog/pen_choices.h"
#include "prepare/dialog/prepare_source.h"
#include "prepare/dialog/presets.h"

#include <QDialog>
#include <QTimer>

#include <filesystem>
#include <functional>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QTableWidget;
class QTabWidget;

namespace torvik {

class BeforeAfter;
class OptionPanel;
class PenList;

// What the dialog asks of those who open it.
struct PrepareSurroundings {
    std::filesystem::path startFolder; // where the first source is looked for
    std::function<void(const std::filesystem::path& folder)> rememberFolder;
    std::function<bool(const std::string& question, const std::string& title)> agrees;
    // The user wants to go on with the saved drawing; the dialog closes.
    std::function<void(const std::filesystem::path& drawing)> openResult;
    int helpContext = 0;
    std::vector<LibraryTool> tools{}; // of the workshop, in the order of its list
    KeptSettings settings{};
};

class FrmPrepare : public QDialog {
    Q_OBJECT

public:
    explicit FrmPrepare(PrepareSurroundings surroundings, QWidget* parent = nullptr);

    // Reads and prepares the file.
    void openSource(const std::filesystem::path& source);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    QWidget* buildSourceRow();
    void addPresets(QHBoxLayout& layout);
    QWidget* buildDrawings();
    QWidget* buildSide();
    QWidget* buildButtons();
    void connectControls();
    void placePensInTabOrder();

    void takePreset(int preset);
    void rememberPreset() const;
    QString kind() const; // of the source: its extension in small letters
    void chooseSource();
    // After a change: soon, and at once for a new source.
    void prepareSoon();
    void prepareNow();
    void proposeTabs();
    void showResult(const PrepareResult& result);
    void showReport(const std::vector<ReportRow>& rows);
    enum class State { idle, good, warning, error };
    void showState(State state, const QString& text);
    void save();
    // place: the drawing, and what is to be said of where it stands.
    void offerToOpen(const std::filesystem::path& drawing, const QString& place);

    PrepareSurroundings m_surroundings;
    Presets m_presets;
    QVariantMap m_usualValues; // of all options
    std::filesystem::path m_source;
    PrepareResult m_result;
    long m_run = 0; // the number of the newest run
    QTimer m_rest;

    QPushButton* m_open = nullptr;
    QLabel* m_sourceName = nullptr;
    BeforeAfter* m_drawings = nullptr;
    QTableWidget* m_report = nullptr;
    OptionPanel* m_options = nullptr;
    PenList* m_pens = nullptr;
    QComboBox* m_preset = nullptr;
    QPushButton* m_usual = nullptr;
    QTabWidget* m_details = nullptr;
    QLabel* m_stateIcon = nullptr;
    QLabel* m_state = nullptr;
    QPushButton* m_save = nullptr;
    QPushButton* m_close = nullptr;
    LatestWork m_work; // last: its thread ends before the rest goes
};

} // namespace torvik
