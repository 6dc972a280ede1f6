// SPDX-License-Identifier: MIT
#include "app/start_up.h"

#include "answers/program_folder.h"
#include "app/about_box.h"
#include "app/help_key.h"
#include "app/help_window.h"
#include "app/message_window.h"
#include "app/readable_style.h"
#include "app/resources.h"
#include "app/single_instance.h"
#include "base/files.h"
#include "base/logger.h"
#include "base/user_folders.h"
#include "forms/key_guard.h"
#include "forms/plain_texts.h"
#include "languages/language.h"
#include "languages/shown_text.h"
#include "tools/settings/open_registry.h"
#include "tools/tool_store.h"
#include "wizard/frm_main.h"
#include "wizard/output/own_settings.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>

#include <memory>

namespace torvik {
namespace {

LogSwitches logSwitches(const Registry& registry) {
    const auto value = [&](const char* name) { return registry.strRegistryValueGet(name, ""); };
    return LogSwitches::fromTexts(value("LogErrors"), value("LogTrace"), value("LogInfo"),
                                  value("LogExclude"));
}

// Whether the program may go on: no other copy runs. Otherwise the other one comes to the front,
// or the user is told why this one ends.
bool guardInstance(SingleInstance& instance, const QString& drawing, StdMessageBox& messages) {
    if (instance.claim())
        return true;
    if (!instance.activateOther(drawing))
        messages.intStdMsgBox(shownText(std::string(usualTitle) +
                                        " cannot start as a previous instance is still running")
                                  .toStdString(),
                              styleExclamation, usualTitle);
    return false;
}

} // namespace

int runDesktop(const QString& drawing) {
    QApplication::setStyle(new ReadableStyle);
    QApplication::setWindowIcon(programIcon());
    speak(spokenLanguage(ownSettings()->value(languageKey).toString(),
                         QLocale::system().uiLanguages()));
    KeyGuard keyGuard;
    const PlainTexts plainTexts;
    MessageWindow messages;
    SingleInstance instance(userRuntimeFolder());
    const QString path = drawing.isEmpty() ? QString() : QFileInfo(drawing).absoluteFilePath();
    if (!guardInstance(instance, path, messages))
        return 0;

    Logger logger(logFile("torvik"));
    const auto registry = openRegistry();
    logger.setSwitches(logSwitches(*registry));
    logger.setReport([&messages](const ErrorReport& report) {
        messages.intStdMsgBox(shownText(report.message()).toStdString(), styleExclamation,
                              usualTitle);
    });
    Workshop workshop{*registry, logger, messages};

    std::unique_ptr<HelpWindow> help;
    FrmMain* window = nullptr;
    const auto showHelp = [&help, &window](int context) {
        if (!help)
            help = std::make_unique<HelpWindow>();
        const QWidget* const dialog = QApplication::activeModalWidget();
        help->showTopic(context, dialog != nullptr ? dialog->window()->frameGeometry()
                                                   : window->formPlace());
    };
    const auto shutdown = [&] {
        help.reset();
        window->close();
        QApplication::quit();
    };
    FrmMain frmMain(
        workshop,
        {.showHelp = showHelp, .showAbout = [&] { showAboutBox(window); }, .Shutdown = shutdown});
    window = &frmMain;
    const HelpKey helpKey([&](const QWidget* control) { frmMain.showHelpFor(control); });
    keyGuard.goFirst(); // else the window would take a held Enter for a step
    const auto open = [&frmMain](const QString& named) {
        if (!named.isEmpty())
            frmMain.ReadFileWhenFree(pathFromUtf8(named.toStdString()));
    };
    QObject::connect(&instance, &SingleInstance::otherStarted, &frmMain,
                     [&frmMain, open](const QString& asked) {
                         frmMain.bringToFront();
                         open(asked);
                     });
    ToolDataLoad(workshop.tools, *registry, logger);
    frmMain.show();
    open(path);
    return QApplication::exec();
}

} // namespace torvik
