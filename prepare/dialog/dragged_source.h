// SPDX-License-Identifier: MIT
// Which files the dialog takes, and the one that is dragged from another program.
#pragma once

#include <QStringList>

class QMimeData;

namespace torvik {

// The extensions of drawings that can be prepared, in small letters.
const QStringList& sourceKinds();

// Those of them that are no plotter drawings: nothing but the preparation reads them.
const QStringList& foreignKinds();
bool isForeignDrawing(const QString& name);

// The drawing that is dragged; empty where it is none, or more than one file.
QString draggedSource(const QMimeData& data);

} // namespace torvik
