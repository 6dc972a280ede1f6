// SPDX-License-Identifier: MIT
#include "prepare/dialog/dragged_source.h"

#include "prepare/source/source_kinds.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

#include <span>

namespace torvik {

namespace {

QStringList listOf(std::span<const std::string_view> kinds) {
    QStringList names;
    for (const std::string_view kind : kinds)
        names << QString::fromLatin1(kind.data(), static_cast<qsizetype>(kind.size()));
    return names;
}

} // namespace

const QStringList& sourceKinds() {
    static const QStringList kinds = listOf(plotterKinds) + foreignKinds();
    return kinds;
}

const QStringList& foreignKinds() {
    static const QStringList kinds = listOf(pictureKinds);
    return kinds;
}

bool isForeignDrawing(const QString& name) {
    return foreignKinds().contains(QFileInfo(name).suffix().toLower());
}

QString draggedSource(const QMimeData& data) {
    if (data.urls().size() != 1)
        return {};
    const QString name = data.urls().constFirst().toLocalFile();
    return sourceKinds().contains(QFileInfo(name).suffix().toLower()) ? name : QString();
}

} // namespace torvik
