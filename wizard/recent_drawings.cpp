// SPDX-License-Identifier: MIT
#include "wizard/recent_drawings.h"

#include "base/files.h"
#include "wizard/output/own_settings.h"

#include <QFileInfo>

namespace torvik {
namespace {

const QString recentKey = QStringLiteral("RecentDrawings");

} // namespace

QStringList rememberedDrawings() {
    return ownSettings()->value(recentKey).toStringList();
}

QStringList recentDrawings() {
    QStringList names = rememberedDrawings();
    names.removeIf([](const QString& name) { return !QFileInfo::exists(name); });
    return names;
}

void addRecentDrawing(const std::filesystem::path& drawing) {
    const QString name = QString::fromStdString(utf8FromPath(drawing));
    QStringList names = rememberedDrawings();
    names.removeAll(name);
    names.prepend(name);
    saveOwnSetting(recentKey, QStringList(names.mid(0, maxRecentDrawings)));
}

} // namespace torvik
