// SPDX-License-Identifier: MIT
// Where a window opens so that a form can still be read and filled in.
#pragma once

#include <QRect>

namespace torvik {

// The place, at most as large as wanted, to the right or to the left of the form: on the right if
// it fits there, else where more room is. It is no higher than the form, unless that is lower than
// `least`. Where neither side has room for a window of the width `least`, it covers the form as
// little as it can. All are in pixels of the screen, which the form may leave.
QRect placeBeside(const QRect& form, const QRect& screen, QSize wanted, QSize least);

} // namespace torvik
