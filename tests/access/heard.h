// SPDX-License-Identifier: MIT
// What somebody who uses the keyboard and hears the form has of it.
#pragma once

class QWidget;

namespace torvik {

// Each control has a name, a role that says how it is used, and a description where neither says
// what it is for.
void expectHeard(QWidget& form);

// The Tab key goes through all controls, in the order in which the eye reads, and round again.
void expectTabGoesRound(QWidget& form);

} // namespace torvik
