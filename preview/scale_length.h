// SPDX-License-Identifier: MIT
// The length of a scale bar.
#pragma once

namespace torvik {

// The longest of 1, 2 and 5 mm, their tenths, tenfolds and so on, that is not above `most` (mm).
// 0 where `most` is no length.
double roundLength(double most);

} // namespace torvik
