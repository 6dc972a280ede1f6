// SPDX-License-Identifier: MIT
// What holds after everything that a user can do.
#pragma once

#include "tests/reliability/record.h"

#include <QImage>

namespace torvik {

class FrmMain;
struct Workshop;

// Next can be pressed exactly where the rules of the page on show say so; page and tree are those
// of the job; nothing covers the window; no text is cut.
void checkWindow(FrmMain& window, const Workshop& workshop, Record& record);
// The picture is the one that a new window would paint for this job. Lines that keep the fit of the
// piece that was on show before are passed over.
void checkPicture(FrmMain& window, const Workshop& workshop, Record& record);
// What stands in the written program is right, or the output page names what is not.
void checkWritten(FrmMain& window, const Workshop& workshop, std::int16_t target,
                  const std::filesystem::path& folder, Record& record);

} // namespace torvik
