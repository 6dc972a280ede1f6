// SPDX-License-Identifier: MIT
#include "prepare/dialog/dragged_source.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace torvik {

const QStringList& sourceKinds() {
    static const QStringList kinds{QStringLiteral("plt"), QStringLiteral("hpgl"),
                                   QStringLiteral("hpg"), QStringLiteral("plo"),
                                   QStringLiteral("svg")};
    return kinds;
}

QString draggedSource(const QMimeData& data) {
    if (data.urls().size() != 1)
        return {};
    const QString name = data.urls().constFirst().toLocalFile();
    return sourceKinds().contains(QFileInfo(name).suffix().toLower()) ? name : QString();
}

} // namespace torvik
