// SPDX-License-Identifier: MIT
// The files that are built into the program: the help topics and the program's picture.
#pragma once

class QIcon;

namespace torvik {

// To be called before a file is read; the linker would leave them out otherwise.
void loadResources();

QIcon programIcon();

} // namespace torvik
