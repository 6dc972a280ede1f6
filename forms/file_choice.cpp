// SPDX-License-Identifier: MIT
#include "forms/file_choice.h"

#include "base/files.h"

#include <QDir>
#include <QFileDialog>

namespace torvik {

QString fileFilter(const QString& what, const QStringList& kinds) {
    QStringList patterns;
    for (const QString& kind : kinds) {
        QString anyCase = QStringLiteral("*.");
#ifdef Q_OS_WIN
        anyCase += kind;
#else
        for (const QChar letter : kind)
            anyCase += QStringLiteral("[%1%2]").arg(letter, letter.toUpper());
#endif
        patterns += anyCase;
    }
    return QStringLiteral("%1 (*.%2) (%3)")
        .arg(what, kinds.join(QStringLiteral(" *.")), patterns.join(u' '));
}

std::filesystem::path chosenFile(const QFileDialog& dialog) {
    const QString name = dialog.selectedFiles().constFirst();
    return pathFromUtf8(QDir::toNativeSeparators(name).toStdString());
}

} // namespace torvik
