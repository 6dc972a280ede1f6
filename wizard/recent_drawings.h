// SPDX-License-Identifier: MIT
// The drawings opened last, newest first, kept in the program's own settings.
#pragma once

#include <QStringList>

#include <filesystem>

namespace torvik {

inline constexpr int maxRecentDrawings = 8;

// All of them, also those that are gone.
QStringList rememberedDrawings();
// Those of them that still exist.
QStringList recentDrawings();
void addRecentDrawing(const std::filesystem::path& drawing);

} // namespace torvik
