// SPDX-License-Identifier: MIT
// The about box.
#pragma once

class QWidget;

namespace torvik {

void showAboutBox(QWidget* parent);

} // namespace torvik
