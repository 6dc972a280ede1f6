// SPDX-License-Identifier: MIT
#include "forms/taking_out.h"

#include "base/errors.h"
#include "base/removable_drive.h"
#include "base/whole_file.h"

#include <QCoreApplication>

namespace torvik {

QString takingOutText(const std::vector<std::filesystem::path>& saved) {
    if (saved.empty() || !isOnRemovableDrive(saved.front()))
        return {};
    try {
        for (const auto& file : saved)
            makeDurable(file);
    } catch (const FileError& error) {
        return QCoreApplication::translate("TakingOut", "Do not take the stick out yet.\n%1")
            .arg(QString::fromUtf8(error.what()));
    }
    return QCoreApplication::translate("TakingOut", "You can take the stick out now.");
}

} // namespace torvik
