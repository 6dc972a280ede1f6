// SPDX-License-Identifier: MIT
// The trial of the program that is about to be written, in the background on copies of job and
// tools. It belongs to the window thread. Ending it stops the trial and waits for it.
#pragma once

#include "gcode/dialects.h"
#include "job/job.h"
#include "tools/tool_list.h"
#include "trial/trial.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <thread>

class QWidget;

namespace torvik {

class TrialRun : public QObject {
    Q_OBJECT

public:
    explicit TrialRun(QObject* parent = nullptr) : QObject(parent) {}

    // Tries the job for the target, in place of what was tried before.
    void begin(const Job& job, const ToolList& tools, std::int16_t target);
    // Forgets the trial, whether it has ended or not.
    void cancel();

    bool isRunning() const { return m_wanted.has_value() || (m_isBusy && !isStopped()); }
    // The target of what is tried, or was; 0: nothing.
    std::int16_t target() const { return m_target; }
    // The trial that has ended, else nullptr. The receiver may take its text and moves.
    TriedProgram* tried() const { return m_tried.get(); }
    // Why it failed.
    const QString& cause() const { return m_cause; }

    // Waits for the end; what takes long says so over the window. False where the user gave up.
    bool finish(QWidget& window);

signals:
    void ended();

private:
    struct Work {
        Job job;
        ToolList tools;
        Dialect dialect;
    };

    bool isStopped() const { return m_thread.get_stop_token().stop_requested(); }
    void start(Work work);
    void take(std::shared_ptr<TriedProgram> tried, const QString& cause);

    std::int16_t m_target = 0;
    std::optional<Work> m_wanted; // waits for the end of the trial before
    std::shared_ptr<TriedProgram> m_tried;
    QString m_cause;
    bool m_isBusy = false;
    std::jthread m_thread;
};

} // namespace torvik
