// SPDX-License-Identifier: MIT
// What of a tried program is said in the same words wherever it is shown.
#pragma once

#include "trial/trial.h"

#include <QString>

namespace torvik {

// "3 passes", "5 holes", "5 holes × 2 pecks".
QString passesText(const TriedGroup& group);

} // namespace torvik
