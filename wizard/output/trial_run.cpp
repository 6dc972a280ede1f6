// SPDX-License-Identifier: MIT
#include "wizard/output/trial_run.h"

#include "base/logger.h"

#include <QEventLoop>
#include <QProgressDialog>
#include <QPushButton>
#include <QTimer>

#include <utility>

namespace torvik {
namespace {

constexpr int patience = 1000; // ms

} // namespace

void TrialRun::begin(const Job& job, const ToolList& tools, std::int16_t target) {
    cancel();
    m_target = target;
    Work work{job, tools, dialectFor(target)};
    if (m_isBusy)
        m_wanted = std::move(work);
    else
        start(std::move(work));
}

void TrialRun::cancel() {
    m_thread.request_stop();
    m_wanted.reset();
    m_tried.reset();
    m_cause.clear();
    m_target = 0;
}

// What it finds reaches the window thread through its queue.
void TrialRun::start(Work work) {
    m_isBusy = true;
    m_thread = std::jthread([this, work = std::move(work)](const std::stop_token& stop) {
        std::string cause;
        Logger logger({}, [&](const ErrorReport& report) { cause = report.cause; });
        auto tried = std::make_shared<TriedProgram>(
            tryProgram(work.job, work.tools, work.dialect, 1, logger, stop));
        QMetaObject::invokeMethod(
            this,
            [this, tried = std::move(tried), cause = QString::fromStdString(cause)] {
                take(tried, cause);
            },
            Qt::QueuedConnection);
    });
}

void TrialRun::take(std::shared_ptr<TriedProgram> tried, const QString& cause) {
    const bool isWanted = !isStopped();
    m_isBusy = false;
    if (m_wanted) {
        start(*std::exchange(m_wanted, std::nullopt));
    } else if (isWanted) {
        m_tried = std::move(tried);
        m_cause = cause;
        emit ended();
    }
}

bool TrialRun::finish(QWidget& window) {
    QEventLoop loop;
    connect(this, &TrialRun::ended, &loop, &QEventLoop::quit);
    if (isRunning()) {
        QTimer::singleShot(patience, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    if (!isRunning())
        return true;
    QProgressDialog busy(tr("Trying the program before it is written…"), {}, 0, 0, &window);
    busy.setObjectName(QStringLiteral("dlgTrying"));
    busy.setWindowModality(Qt::ApplicationModal);
    auto* const goBack = new QPushButton(tr("Go back"));
    goBack->setObjectName(QStringLiteral("cmdGoBack"));
    goBack->setToolTip(tr("Nothing is written"));
    busy.setCancelButton(goBack);
    connect(&busy, &QProgressDialog::canceled, &loop, &QEventLoop::quit);
    busy.show();
    loop.exec();
    return !isRunning();
}

} // namespace torvik
