// SPDX-License-Identifier: MIT
// Which page of the wizard a drawing with unfinished answers goes on with.
#pragma once

#include "answers/unfinished_text.h"

namespace torvik {

struct Job;

// The page on show, as it is kept.
WizardPlace placeOf(const Job& job);

// The first page up to the one given that is not complete, so that no page is passed over that
// could not have been left; else the one given, or the nearest one that the drawing has.
WizardPlace placeToShow(const Job& job, const WizardPlace& stopped);

} // namespace torvik
