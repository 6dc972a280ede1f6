// SPDX-License-Identifier: MIT
// torvik-convert: drawings in, programs out, with no window.
#pragma once

#include <QStringList>

#include <iosfwd>

namespace torvik {

// Does what the arguments (the program's name first) ask for; progress goes to `out`, one line for
// each thing that went wrong to `err`. Returns the exit code of exit_codes.h. Needs a
// QCoreApplication.
int runConverter(const QStringList& arguments, std::ostream& out, std::ostream& err);

} // namespace torvik
