// SPDX-License-Identifier: MIT
#include "wizard/output/file_dialogs.h"

#include "answers/program_folder.h"
#include "base/files.h"
#include "base/std_message_box.h"
#include "forms/file_choice.h"
#include "gcode/dialects.h"
#include "tools/registry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace torvik {
namespace {

struct SaveTarget {
    QString name;
    QString extension;
    const char* folderSetting;
};

SaveTarget saveTarget(std::int16_t target) {
    const Dialect& dialect = dialectFor(target == targetMaskor ? targetMaskor : targetKestra);
    return {QString::fromUtf8(dialect.name), QString::fromUtf8(dialect.extension),
            target == targetMaskor ? maskorFolderSetting : kestraFolderSetting};
}

QString sampleFolder() {
    return QString::fromStdString(utf8FromPath(programFolder() / "Sample files"));
}

// The folder used last, or the one with the samples, or at least one that exists.
QString startFolder(const Registry& registry, const char* setting) {
    const QString folder =
        QString::fromStdString(registry.strRegistryValueGet(setting, sampleFolder().toStdString()));
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

// What the user reads of it is "KIND files (*.EXTENSION)".
QString filterText(const QString& kind, const QString& extension) {
    return fileFilter(QCoreApplication::translate("FileDialogs", "%1 files").arg(kind),
                      {extension});
}

void rememberFolder(Registry& registry, const char* setting, const QString& folder) {
    registry.RegistryValuePut(setting, QDir::toNativeSeparators(folder).toStdString());
}

} // namespace

QString plotFolder(const Registry& registry) {
    return startFolder(registry, plotFolderSetting);
}

void rememberPlotFolder(Registry& registry, const QString& folder) {
    rememberFolder(registry, plotFolderSetting, folder);
}

std::filesystem::path strGetInputFile(Registry& registry, QWidget* parent) {
    QFileDialog dialog(
        parent, QCoreApplication::translate("FileDialogs", "Select the HPGL file to process"),
        plotFolder(registry), filterText(QStringLiteral("HPGL"), QStringLiteral("plt")));
    dialog.setObjectName(QStringLiteral("dlgOpen"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    const bool chosen = dialog.exec() == QDialog::Accepted;
    rememberPlotFolder(registry, dialog.directory().absolutePath());
    return chosen ? chosenFile(dialog) : std::filesystem::path();
}

std::filesystem::path strGetOutputFile(Registry& registry, StdMessageBox& messages,
                                       const std::string& proposedName, std::int16_t target,
                                       const std::filesystem::path& drawing, QWidget* parent) {
    const SaveTarget kind = saveTarget(target);
    QFileDialog dialog(
        parent,
        QCoreApplication::translate("FileDialogs", "Select the destination %1 file").arg(kind.name),
        startFolder(registry, kind.folderSetting), filterText(kind.name, kind.extension));
    dialog.setObjectName(QStringLiteral("dlgSave"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setDefaultSuffix(kind.extension);
    dialog.selectFile(QString::fromStdString(proposedName));
    while (dialog.exec() == QDialog::Accepted) {
        auto path = chosenFile(dialog);
        std::error_code error;
        if (std::filesystem::equivalent(path, drawing, error)) {
            messages.intStdMsgBox(
                QCoreApplication::translate(
                    "FileDialogs",
                    "This is the drawing itself.\nPlease choose another name for the program.")
                    .toStdString(),
                styleExclamation, usualTitle);
            continue;
        }
        rememberFolder(registry, kind.folderSetting,
                       QFileInfo(QString::fromStdString(utf8FromPath(path))).absolutePath() +
                           QStringLiteral("/"));
        return path;
    }
    return {};
}

} // namespace torvik
