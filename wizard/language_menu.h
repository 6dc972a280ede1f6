// SPDX-License-Identifier: MIT
// View ▸ Language: the language of the program's texts, from its next start on.
#pragma once

class QMenu;

namespace torvik {

// Adds the languages to the menu; the chosen one is kept in the program's own settings.
void addLanguages(QMenu& menu);

} // namespace torvik
