// SPDX-License-Identifier: MIT
#include "wizard/program_folder.h"

#include "base/files.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace torvik {
namespace {

std::filesystem::path toPath(const QString& name) {
    return pathFromUtf8(name.toStdString());
}

QString homeFolder() {
    const QString home = qEnvironmentVariable("TORVIK_HOME");
    return home.isEmpty() ? QString() : QDir(home).absolutePath();
}

// Folders of the system are shared with other programs; whoever may write to them should not.
bool belongsToSystem(const QString& folder) {
#ifdef Q_OS_UNIX
    const QString inside = folder + QLatin1Char('/');
    return inside.startsWith(QLatin1String("/usr/")) || inside.startsWith(QLatin1String("/bin/"));
#else
    Q_UNUSED(folder)
    return false;
#endif
}

bool canBeWritten(const QString& folder) {
#ifdef Q_OS_WIN
    // Who may write is not looked up there unless a file is made; it is removed at once.
    QTemporaryFile probe(folder + QLatin1String("/torvik-XXXXXX"));
    return probe.open();
#else
    return QFileInfo(folder).isWritable();
#endif
}

} // namespace

std::filesystem::path programFolder() {
    const QString home = homeFolder();
    return toPath(home.isEmpty() ? QCoreApplication::applicationDirPath() : home);
}

std::filesystem::path dataFolder() {
    const QString home = homeFolder();
    return home.isEmpty() ? dataFolderFor(programFolder()) : toPath(home);
}

std::filesystem::path dataFolderFor(const std::filesystem::path& executableFolder) {
    const QString own = QString::fromStdString(utf8FromPath(executableFolder));
    if (!belongsToSystem(own) && canBeWritten(own))
        return executableFolder;
    return toPath(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)) / "Torvik";
}

std::filesystem::path savedSettingsFolder() {
    return dataFolder() / "PlotSave";
}

std::filesystem::path logFile(std::string_view programName) {
    return dataFolder() / pathFromUtf8(std::string(programName).append(".log"));
}

} // namespace torvik
