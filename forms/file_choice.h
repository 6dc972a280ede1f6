// SPDX-License-Identifier: MIT
// What all dialogs for drawings and programs share that ask for a file.
#pragma once

#include <QString>
#include <QStringList>

#include <filesystem>

class QFileDialog;

namespace torvik {

// "HPGL and SVG drawings (*.plt *.hpgl) (PATTERNS)": where the system tells the cases of letters
// apart the patterns take all; what the user reads ends before them. The kinds are extensions in
// small letters.
QString fileFilter(const QString& what, const QStringList& kinds);

// The one file that was chosen, written as the system does.
std::filesystem::path chosenFile(const QFileDialog& dialog);

} // namespace torvik
