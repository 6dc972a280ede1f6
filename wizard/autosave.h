// SPDX-License-Identifier: MIT
// Keeps what was answered, and what stands in the boxes of the page on show, at each step and a
// moment after each change, until a program is written; and offers it when the same drawing is
// opened again. Where it cannot be kept, this is said until it can, and logged once for a drawing;
// nobody is stopped.
#pragma once

#include "answers/unfinished_answers.h"
#include "base/error_trap.h"
#include "wizard/host/workshop.h"
#include "wizard/main_controls.h"

#include <QObject>
#include <QTimer>

#include <optional>
#include <utility>

namespace torvik {

class Autosave : public QObject {
    Q_OBJECT

public:
    // The controls are there when a drawing is opened.
    Autosave(Workshop& workshop, const MainControls& controls);

    // A drawing was imported and step 2 is on show. Where an earlier run stopped before a program
    // was written and the user wants to go on there, this is returned; else it is gone. Nothing is
    // asked where the answers came back from memory.
    std::optional<Unfinished> open(bool cameBack);
    // Keeps what there is now.
    void saveNow();
    // The same when the running event has ended, unless it is stopped.
    void saveSoon();
    // Keeps it and then nothing more, until it is started again.
    void stop();
    void start() { m_timer.start(); }
    // The answers are among the saved ones now.
    void programWritten();

signals:
    // After each try: whether what there is now could not be kept.
    void unkept(bool isUnkept);

private:
    bool wantsToGoOn(const Unfinished& found);
    void settle();
    // The job without its lines, its answers as they stand in the page on show.
    Job typedJob() const;
    std::vector<std::string> typedTexts() const;

    // Runs the work; its first failure is logged.
    template <typename Work>
    void quietly(Work&& work) {
        if (!withQuietErrorTrap(m_hasFailed ? m_muted : m_workshop.logger, {"Autosave", "frmMain"},
                                std::forward<Work>(work)))
            m_hasFailed = true;
    }

    Workshop& m_workshop;
    const MainControls& m_controls;
    UnfinishedFile m_file;
    QTimer m_timer;
    Logger m_muted;
    bool m_hasFailed = false;
};

} // namespace torvik
