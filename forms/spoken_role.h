// SPDX-License-Identifier: MIT
// What a screen reader takes a control for that the program has built itself.
#pragma once

#include <QAccessible>

namespace torvik {

void setSpokenRole(QWidget& control, QAccessible::Role role);

} // namespace torvik
