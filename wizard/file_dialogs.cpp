// SPDX-License-Identifier: MIT
#include "wizard/file_dialogs.h"

#include "base/files.h"
#include "base/std_message_box.h"
#include "gcode/dialects.h"
#include "tools/registry.h"
#include "wizard/program_folder.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace torvik {
namespace {

struct SaveTarget {
    QString name;
    QString extension;
    const char* folderSetting;
};

SaveTarget saveTarget(std::int16_t target) {
    const Dialect& dialect = dialectFor(target == targetMaskor ? targetMaskor : targetKestra);
    const auto text = [](std::string_view view) {
        return QString::fromUtf8(view.data(), static_cast<qsizetype>(view.size()));
    };
    return {text(dialect.name), text(dialect.extension),
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

// The filter takes every letter case.
QString filterText(const QString& kind, const QString& extension) {
    return QStringLiteral("%1 files (*.%2 *.%3)").arg(kind, extension, extension.toUpper());
}

void rememberFolder(Registry& registry, const char* setting, const QString& folder) {
    registry.RegistryValuePut(setting, QDir::toNativeSeparators(folder).toStdString());
}

QString chosenFile(const QFileDialog& dialog) {
    return QDir::toNativeSeparators(dialog.selectedFiles().constFirst());
}

} // namespace

std::filesystem::path strGetInputFile(Registry& registry, QWidget* parent) {
    QFileDialog dialog(parent, QStringLiteral("Select the HPGL file to process"),
                       startFolder(registry, plotFolderSetting),
                       filterText(QStringLiteral("HPGL"), QStringLiteral("plt")));
    dialog.setObjectName(QStringLiteral("dlgOpen"));
    dialog.setFileMode(QFileDialog::ExistingFile);
    const bool chosen = dialog.exec() == QDialog::Accepted;
    rememberFolder(registry, plotFolderSetting, dialog.directory().absolutePath());
    return chosen ? pathFromUtf8(chosenFile(dialog).toStdString()) : std::filesystem::path();
}

std::filesystem::path strGetOutputFile(Registry& registry, const std::string& proposedName,
                                       std::int16_t target, const std::filesystem::path& drawing,
                                       QWidget* parent) {
    const SaveTarget kind = saveTarget(target);
    QFileDialog dialog(parent, QStringLiteral("Select the destination %1 file").arg(kind.name),
                       startFolder(registry, kind.folderSetting),
                       filterText(kind.name, kind.extension));
    dialog.setObjectName(QStringLiteral("dlgSave"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(kind.extension);
    dialog.selectFile(QString::fromStdString(proposedName));
    while (dialog.exec() == QDialog::Accepted) {
        const QString name = chosenFile(dialog);
        const auto path = pathFromUtf8(name.toStdString());
        std::error_code error;
        if (std::filesystem::equivalent(path, drawing, error)) {
            QMessageBox::warning(parent, QString::fromUtf8(usualTitle),
                                 QStringLiteral("This is the drawing itself. Please choose another "
                                                "name for the program."));
            continue;
        }
        rememberFolder(registry, kind.folderSetting,
                       QFileInfo(name).absolutePath() + QStringLiteral("/"));
        return path;
    }
    return {};
}

} // namespace torvik
