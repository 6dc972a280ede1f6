// SPDX-License-Identifier: MIT
// View ▸ Language: the language of the program's texts, from its next start on.
#pragma once

class QMenu;

namespace torvik {

class StdMessageBox;

// Adds the languages to the menu; the chosen one is kept in the program's own settings.
// A choice that cannot be saved is told and taken back.
void addLanguages(QMenu& menu, StdMessageBox& messages);

} // namespace torvik
