// SPDX-License-Identifier: MIT
// The dialogs that choose a drawing to open and a program's file to save. They start in the folder
// used last, which the workshop's programs share, and remember the folder they ended in. A program
// that was never saved before starts beside its drawing.
#pragma once

#include <QString>

#include <filesystem>
#include <string>

class QWidget;

namespace torvik {

struct Dialect;
class Registry;
class StdMessageBox;

// The registry's setting of the folder that drawings come from.
inline constexpr const char* plotFolderSetting = "PLT File Path";

// The folder that drawings are looked for in, and the one where one was found.
QString plotFolder(const Registry& registry);
void rememberPlotFolder(Registry& registry, const QString& folder);

// "Select the HPGL file to process". An empty path when the user cancels.
std::filesystem::path strGetInputFile(Registry& registry, const QStringList& otherFilters,
                                      QWidget* parent);

// The Save dialog of the target. It refuses the drawing itself, gives every name the target's
// extension, and then asks before a file is replaced. An empty path when the user cancels.
std::filesystem::path strGetOutputFile(Registry& registry, StdMessageBox& messages,
                                       const std::string& proposedName, const Dialect& dialect,
                                       const std::filesystem::path& drawing, QWidget* parent);

} // namespace torvik
