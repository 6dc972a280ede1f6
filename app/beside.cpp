// SPDX-License-Identifier: MIT
#include "app/beside.h"

#include <algorithm>

namespace torvik {

QRect placeBeside(const QRect& form, const QRect& screen, QSize wanted, QSize least) {
    const int roomRight = screen.right() - form.right();
    const int roomLeft = form.left() - screen.left();
    const bool isRight = roomRight >= wanted.width() || roomRight >= roomLeft;
    const int room = std::max(isRight ? roomRight : roomLeft, least.width());
    const QSize size = QSize(std::min(wanted.width(), room),
                             std::min(wanted.height(), std::max(form.height(), least.height())))
                           .boundedTo(screen.size());
    const int left = isRight ? form.right() + 1 : form.left() - size.width();
    return {std::clamp(left, screen.left(), screen.right() + 1 - size.width()),
            std::clamp(form.top(), screen.top(), screen.bottom() + 1 - size.height()), size.width(),
            size.height()};
}

} // namespace torvik
