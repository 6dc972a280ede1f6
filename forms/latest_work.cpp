// SPDX-License-Identifier: MIT
#include "forms/latest_work.h"

#include <utility>

namespace torvik {

LatestWork::LatestWork() : m_thread([this](const std::stop_token& end) { run(end); }) {}

LatestWork::~LatestWork() {
    m_thread.request_stop();
    stop();
}

void LatestWork::start(Work work) {
    {
        const std::scoped_lock lock(m_mutex);
        m_waiting = std::move(work);
    }
    m_changed.notify_one();
}

void LatestWork::stop() {
    const std::scoped_lock lock(m_mutex);
    m_waiting = {};
    m_running.request_stop();
}

void LatestWork::run(const std::stop_token& end) {
    std::unique_lock lock(m_mutex);
    while (m_changed.wait(lock, end, [this] { return static_cast<bool>(m_waiting); })) {
        // The wait ends with work, though the end was asked for, where both came together.
        if (end.stop_requested())
            return;
        const Work work = std::exchange(m_waiting, {});
        m_running = std::stop_source();
        const std::stop_token stop = m_running.get_token();
        lock.unlock();
        work(stop);
        lock.lock();
    }
}

} // namespace torvik
