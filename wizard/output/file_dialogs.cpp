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

QString fromView(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString sampleFolder() {
    return QString::fromStdString(utf8FromPath(programFolder() / "Sample files"));
}

// The folder used last, or the one with the samples, or at least one that exists.
QString startFolder(const Registry& registry, std::string_view setting) {
    const QString folder =
        QString::fromStdString(registry.strRegistryValueGet(setting, sampleFolder().toStdString()));
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

void rememberFolder(Registry& registry, std::string_view setting, const QString& folder) {
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
        plotFolder(registry),
        fileFilter(QCoreApplication::translate("FileDialogs", "HPGL files"),
                   {QStringLiteral("plt")}));
    dialog.setObjectName(QStringLiteral("dlgOpen"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    const bool chosen = dialog.exec() == QDialog::Accepted;
    rememberPlotFolder(registry, dialog.directory().absolutePath());
    return chosen ? chosenFile(dialog) : std::filesystem::path();
}

std::filesystem::path strGetOutputFile(Registry& registry, StdMessageBox& messages,
                                       const std::string& proposedName, const Dialect& dialect,
                                       const std::filesystem::path& drawing, QWidget* parent) {
    const QString extension = fromView(dialect.extension);
    QFileDialog dialog(parent, fromView(dialect.saveTitle),
                       startFolder(registry, dialect.folderSetting),
                       fileFilter(fromView(dialect.saveKind), {extension}));
    dialog.setObjectName(QStringLiteral("dlgSave"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setDefaultSuffix(extension);
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
        rememberFolder(registry, dialect.folderSetting,
                       QFileInfo(QString::fromStdString(utf8FromPath(path))).absolutePath() +
                           QStringLiteral("/"));
        return path;
    }
    return {};
}

} // namespace torvik
