// SPDX-License-Identifier: MIT
// Work that falls into parts which do not touch one another, done by several threads.
#pragma once

#include <atomic>
#include <thread>
#include <vector>

namespace torvik {

// Calls work(part) once for each part from 0 to `parts` - 1, in any order, and waits for all. The
// work must not throw.
template <typename Work>
void inThreads(int parts, int threads, const Work& work) {
    std::atomic<int> next = 0;
    const auto workOn = [&] {
        for (int part = next++; part < parts; part = next++)
            work(part);
    };
    std::vector<std::jthread> others;
    for (int i = 1; i < threads; ++i)
        others.emplace_back(workOn);
    workOn();
}

} // namespace torvik
