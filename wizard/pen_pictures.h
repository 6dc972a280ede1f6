// SPDX-License-Identifier: MIT
// The pictures of the image list: each pen colour as a line that is cut, a pen that is left out,
// circles, and a hole size.
#pragma once

#include <QIcon>
#include <QString>

#include <cstdint>

namespace torvik {

struct Job;

// The picture with the number that the colour tree gives, 1 to 32.
QIcon penPicture(std::int16_t image, const Job& job);
// What the picture says, for those who do not see it.
QString penPictureText(std::int16_t image);

} // namespace torvik
