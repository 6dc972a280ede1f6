// SPDX-License-Identifier: MIT
// torvik-prepare: drawings of other programs in, drawings that the job's reader reads completely
// out.
#pragma once

#include <QStringList>

#include <iosfwd>

namespace torvik {

// Does what the arguments (the program's name first) ask for; progress and reports go to `out`,
// one line for each thing that went wrong or was lost to `err`. Returns the exit code. Needs a
// QCoreApplication.
int runPreparer(const QStringList& arguments, std::ostream& out, std::ostream& err);

} // namespace torvik
