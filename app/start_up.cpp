// SPDX-License-Identifier: MIT
#include "app/start_up.h"

#include "app/about_box.h"
#include "app/help_window.h"
#include "app/message_window.h"
#include "app/single_instance.h"
#include "base/logger.h"
#include "tools/open_registry.h"
#include "tools/tool_store.h"
#include "wizard/frm_main.h"
#include "wizard/program_folder.h"

#include <QApplication>

namespace torvik {
namespace {

LogSwitches logSwitches(const Registry& registry) {
    const auto value = [&](const char* name) { return registry.strRegistryValueGet(name, ""); };
    return LogSwitches::fromTexts(value("LogErrors"), value("LogTrace"), value("LogInfo"),
                                  value("LogExclude"));
}

// Whether the program may go on: no other copy runs. Otherwise the other one comes to the front,
// or the user is told why this one ends.
bool guardInstance(SingleInstance& instance, StdMessageBox& messages) {
    if (instance.claim())
        return true;
    if (!instance.activateOther())
        messages.intStdMsgBox(std::string(usualTitle) +
                                  " cannot start as a previous instance is still running",
                              styleExclamation, usualTitle);
    return false;
}

} // namespace

int runDesktop(QApplication& application) {
    MessageWindow messages;
    SingleInstance instance(instanceName());
    if (!guardInstance(instance, messages))
        return 0;

    Logger logger(logFile("torvik"));
    const auto registry = openRegistry();
    logger.setSwitches(logSwitches(*registry));
    logger.setReport([&messages](const ErrorReport& report) {
        messages.intStdMsgBox(report.message(), styleExclamation, usualTitle);
    });
    Workshop workshop{*registry, logger, messages};

    HelpWindow help;
    FrmMain* window = nullptr;
    FrmMain frmMain(workshop, {.showHelp = [&](int context) { help.showTopic(context); },
                               .showAbout = [&] { showAboutBox(window); },
                               .Shutdown =
                                   [&] {
                                       help.close();
                                       window->close();
                                       QApplication::quit();
                                   }});
    window = &frmMain;
    QObject::connect(&instance, &SingleInstance::otherStarted, &frmMain, &FrmMain::bringToFront);
    ToolDataLoad(workshop.tools, *registry, logger);
    frmMain.show();
    return application.exec();
}

} // namespace torvik
