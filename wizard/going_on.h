// SPDX-License-Identifier: MIT
// Going on with a drawing where an earlier run of the program stopped.
#pragma once

#include "answers/unfinished_answers.h"
#include "wizard/main_controls.h"

namespace torvik {

struct Workshop;
class WizardDriver;

// Puts the answers into the job, whose step 2 is on show, and shows the page where the user
// stopped, its boxes as they were typed; or an earlier page that is not complete.
void goOn(Workshop& workshop, const MainControls& controls, WizardDriver& driver,
          Unfinished stopped);

} // namespace torvik
