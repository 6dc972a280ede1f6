// SPDX-License-Identifier: MIT
// Work in a thread of its own, one piece after the other. Of the pieces that wait only the newest
// is done. What the work finds out it sends to its owner as a queued call; it raises nothing.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>

namespace torvik {

class LatestWork {
public:
    using Work = std::function<void(const std::stop_token& stop)>;

    LatestWork();
    // Asks what runs to stop, and waits for its end.
    ~LatestWork();
    LatestWork(const LatestWork&) = delete;
    LatestWork& operator=(const LatestWork&) = delete;

    // Does the work when what runs has ended, in place of what waits.
    void start(Work work);
    // Forgets what waits and asks what runs to stop.
    void stop();

private:
    void run(const std::stop_token& end);

    std::mutex m_mutex;
    std::condition_variable_any m_changed;
    Work m_waiting;
    std::stop_source m_running;
    std::jthread m_thread; // last: it uses all the others
};

} // namespace torvik
