// SPDX-License-Identifier: MIT
// Says what a program waits for: a pipe or a device gives its bytes when it likes, perhaps never.
#pragma once

#include <condition_variable>
#include <filesystem>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace torvik {

// Lives while the files are read. Where one of them is no ordinary file and the reading takes
// longer than a second, `say` is called once, from a thread of its own, with the names of those.
class WaitingNotice {
public:
    WaitingNotice(const std::vector<std::filesystem::path>& files,
                  std::function<void(std::string_view message)> say);
    ~WaitingNotice();
    WaitingNotice(const WaitingNotice&) = delete;
    WaitingNotice& operator=(const WaitingNotice&) = delete;

private:
    void wait();

    std::function<void(std::string_view message)> m_say;
    std::string m_names;
    std::mutex m_mutex;
    std::condition_variable m_ended;
    bool m_hasEnded = false;
    std::thread m_thread;
};

} // namespace torvik
