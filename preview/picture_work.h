// SPDX-License-Identifier: MIT
// Pictures that are painted in the background, the newest one only. The painting works with what is
// handed to it and touches nothing else; what it gives is taken over in the window's thread.
#pragma once

#include "forms/latest_work.h"

#include <functional>
#include <future>

class QObject;

namespace torvik {

class PictureWork {
public:
    using TakeOver = std::function<void()>;
    using Paint = std::function<TakeOver(const std::stop_token& stop)>;

    // `ready` is called in the owner's thread when takeOver() can be called.
    PictureWork(QObject* owner, std::function<void()> ready);

    // Paints in place of what is being painted, and waits for it as long as nobody feels. True when
    // it can be taken over already.
    bool start(Paint paint);
    void stop();
    bool isBusy() const { return m_result.valid(); }
    // Takes what is there, if anything is. Raises what the painting raised.
    void takeOver();

private:
    QObject* m_owner;
    std::function<void()> m_ready;
    std::future<TakeOver> m_result;
    LatestWork m_work; // last: its thread ends before the rest goes
};

} // namespace torvik
