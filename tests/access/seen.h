// SPDX-License-Identifier: MIT
// What somebody who sees badly has of a form.
#pragma once

class QWidget;

namespace torvik {

// As it is painted: letters differ 4.5 to 1 from their ground, edges of controls 3 to 1 from what
// is around them. What is disabled may be fainter.
void expectContrast(QWidget& form);

// What is clicked is at least 24 pixels high and wide: controls, tabs and rows.
void expectTargets(QWidget& form);

// The form fits a screen of 1024 by 768, and nothing in it is smaller than what it shows. What
// scrolls may be larger than its window.
void expectUncut(QWidget& form);

} // namespace torvik
