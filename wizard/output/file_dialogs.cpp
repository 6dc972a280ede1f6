// SPDX-License-Identifier: MIT
#include "wizard/output/file_dialogs.h"

#include "answers/program_folder.h"
#include "base/files.h"
#include "base/std_message_box.h"
#include "forms/file_choice.h"
#include "gcode/dialects.h"
#include "languages/shown_text.h"
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

QString named(const std::filesystem::path& path) {
    return QString::fromStdString(utf8FromPath(path));
}

QString folderOf(const std::filesystem::path& file) {
    return QFileInfo(named(file)).absolutePath();
}

// The folder used last, or where none is remembered the other one, or at least one that exists.
QString startFolder(const Registry& registry, std::string_view setting, const QString& other) {
    const QString folder =
        QString::fromStdString(registry.strRegistryValueGet(setting, other.toStdString()));
    for (const QString& place : {folder, other})
        if (QFileInfo(place).isDir())
            return place;
    return QDir::homePath();
}

void rememberFolder(Registry& registry, std::string_view setting, const QString& folder) {
    registry.RegistryValuePut(setting, QDir::toNativeSeparators(folder).toStdString());
}

bool isSameFile(const std::filesystem::path& one, const std::filesystem::path& other) {
    std::error_code error;
    return std::filesystem::equivalent(one, other, error);
}

// A dot within a name begins no extension: "part.v2" becomes "part.v2.iso".
std::filesystem::path withExtension(const std::filesystem::path& file, const QString& extension) {
    const QString name = named(file);
    if (name.endsWith(u'.' + extension, Qt::CaseInsensitive))
        return file;
    return pathFromUtf8(
        (name + (name.endsWith(u'.') ? QString() : QStringLiteral(".")) + extension).toStdString());
}

void tellOfDrawing(StdMessageBox& messages) {
    messages.intStdMsgBox(
        QCoreApplication::translate(
            "FileDialogs",
            "This is the drawing itself.\nPlease choose another name for the program.")
            .toStdString(),
        styleExclamation, usualTitle);
}

bool mayReplace(const std::filesystem::path& file, StdMessageBox& messages) {
    std::error_code error;
    return !std::filesystem::exists(file, error) ||
           messages.intStdMsgBox(
               QCoreApplication::translate("FileDialogs", "A file named %1 already exists in this "
                                                          "folder\nDo you want to overwrite it?")
                   .arg(named(file.filename()))
                   .toStdString(),
               styleQuestionDefaultNo, usualTitle) == buttonYes;
}

} // namespace

QString plotFolder(const Registry& registry) {
    return startFolder(registry, plotFolderSetting, named(sampleFolder()));
}

void rememberPlotFolder(Registry& registry, const QString& folder) {
    rememberFolder(registry, plotFolderSetting, folder);
}

std::filesystem::path strGetInputFile(Registry& registry, const QStringList& otherFilters,
                                      QWidget* parent) {
    QFileDialog dialog(
        parent, QCoreApplication::translate("FileDialogs", "Select the HPGL file to process"),
        plotFolder(registry));
    dialog.setNameFilters(
        QStringList{fileFilter(QCoreApplication::translate("FileDialogs", "HPGL files"),
                               {QStringLiteral("plt")})} +
        otherFilters);
    dialog.setObjectName(QStringLiteral("dlgOpen"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    if (dialog.exec() != QDialog::Accepted) {
        rememberPlotFolder(registry, dialog.directory().absolutePath());
        return {};
    }
    auto path = chosenFile(dialog); // a folder that was typed with the name counts
    rememberPlotFolder(registry, folderOf(path));
    return path;
}

std::filesystem::path strGetOutputFile(Registry& registry, StdMessageBox& messages,
                                       const std::string& proposedName, const Dialect& dialect,
                                       const std::filesystem::path& drawing, QWidget* parent) {
    const QString extension = fromView(dialect.extension);
    QFileDialog dialog(parent, shownText(dialect.saveTitle),
                       startFolder(registry, dialect.folderSetting, folderOf(drawing)),
                       fileFilter(shownText(dialect.saveKind), {extension}));
    dialog.setObjectName(QStringLiteral("dlgSave"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setOption(QFileDialog::DontConfirmOverwrite); // asked below, of the whole name
    dialog.setDefaultSuffix(extension);
    dialog.selectFile(QString::fromStdString(proposedName));
    while (dialog.exec() == QDialog::Accepted) {
        const auto chosen = chosenFile(dialog);
        auto path = withExtension(chosen, extension);
        if (isSameFile(chosen, drawing) || isSameFile(path, drawing)) {
            tellOfDrawing(messages);
        } else if (mayReplace(path, messages)) {
            rememberFolder(registry, dialect.folderSetting, folderOf(path) + QStringLiteral("/"));
            return path;
        }
    }
    return {};
}

} // namespace torvik
