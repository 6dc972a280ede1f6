// SPDX-License-Identifier: MIT
// Where a control carries the number of its help topic.
#pragma once

namespace torvik {

// The help context number of a control, a property of it; what it stands in answers for a control
// without one.
inline constexpr const char* helpContextProperty = "helpContext";

// The topic of the tool list, and of what leads to it.
inline constexpr int helpTools = 60;

} // namespace torvik
