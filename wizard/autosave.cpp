// SPDX-License-Identifier: MIT
#include "wizard/autosave.h"

#include "answers/unfinished_place.h"
#include "wizard/globals_page.h"
#include "wizard/header_page.h"
#include "wizard/order_page.h"
#include "wizard/pens/pen_page.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>

namespace torvik {
namespace {

constexpr int keepTime = 1500; // ms between two looks at the answers

// "10:42", "on 25 November at 10:42"; the same on every machine.
QString timeText(const QDateTime& time) {
    const QString clock = time.toString(QStringLiteral("HH:mm"));
    const QDate today = QDate::currentDate();
    if (time.date() == today)
        return Autosave::tr("at %1").arg(clock);
    const bool sameYear = time.date().year() == today.year();
    const QString day = QLocale::c().toString(
        time.date(), sameYear ? QStringLiteral("d MMMM") : QStringLiteral("d MMMM yyyy"));
    return Autosave::tr("on %1 at %2").arg(day, clock);
}

} // namespace

Autosave::Autosave(Workshop& workshop, const MainControls& controls)
    : m_workshop(workshop), m_controls(controls) {
    m_timer.setParent(this);
    m_timer.setObjectName(QStringLiteral("tmrAutosave"));
    m_timer.setInterval(keepTime);
    connect(&m_timer, &QTimer::timeout, this, &Autosave::saveNow);
}

std::optional<Unfinished> Autosave::open(bool cameBack) {
    m_hasFailed = false;
    std::optional<Unfinished> found;
    quietly([&] { found = findUnfinished(m_workshop.job); });
    m_file.begin(found);
    if (!cameBack) {
        if (found && !wantsToGoOn(*found)) {
            found.reset();
            quietly([&] { m_file.forget(); });
        }
        settle();
    }
    start();
    return cameBack ? std::nullopt : std::move(found);
}

bool Autosave::wantsToGoOn(const Unfinished& found) {
    const QString question = tr("Go on where you stopped %1?\n"
                                "With No, what was answered then is forgotten.")
                                 .arg(timeText(QFileInfo(found.file).lastModified()));
    return m_workshop.messages.intStdMsgBox(question.toStdString(), styleQuestion, usualTitle) ==
           buttonYes;
}

void Autosave::saveNow() {
    if (m_workshop.job.gintWizardStep > 1)
        quietly([&] {
            m_file.keep(typedJob(), m_workshop.tools, placeOf(m_workshop.job), typedTexts());
        });
    emit unkept(m_file.isUnkept());
}

void Autosave::saveSoon() {
    QTimer::singleShot(0, this, [this] {
        if (m_timer.isActive())
            saveNow();
    });
}

void Autosave::stop() {
    saveNow();
    m_timer.stop();
}

void Autosave::programWritten() {
    quietly([&] { m_file.forget(); });
    settle();
}

void Autosave::settle() {
    quietly([&] { m_file.settle(typedJob(), m_workshop.tools); });
}

Job Autosave::typedJob() const {
    const Job& job = m_workshop.job;
    Job typed;
    typed.drawing.gstrPlotFile = job.drawing.gstrPlotFile;
    typed.drawing.gstrDigest = job.drawing.gstrDigest;
    typed.answers = job.answers;
    switch (job.gintWizardStep) {
    case 2:
        m_controls.globals->storeTyped(typed.answers);
        break;
    case 3:
        m_controls.pens->storeTyped(typed.answers);
        break;
    case 4:
        m_controls.order->storeTyped(typed.answers);
        break;
    case 5:
        m_controls.header->storeTyped(typed.answers);
        break;
    default:
        break;
    }
    return typed;
}

std::vector<std::string> Autosave::typedTexts() const {
    switch (m_workshop.job.gintWizardStep) {
    case 2:
        return m_controls.globals->typedTexts();
    case 3:
        return m_controls.pens->typedTexts();
    default:
        return {};
    }
}

} // namespace torvik
