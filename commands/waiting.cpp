// SPDX-License-Identifier: MIT
#include "commands/waiting.h"

#include "base/files.h"

#include <chrono>

namespace torvik {
namespace {

constexpr std::chrono::seconds patience{1};

// The names of those that may keep a reader waiting.
std::string slowOnes(const std::vector<std::filesystem::path>& files) {
    std::string names;
    for (const auto& file : files) {
        std::error_code unknown;
        if (std::filesystem::is_other(std::filesystem::status(file, unknown)))
            names += (names.empty() ? "" : " and ") + utf8FromPath(file);
    }
    return names;
}

} // namespace

WaitingNotice::WaitingNotice(const std::vector<std::filesystem::path>& files,
                             std::function<void(std::string_view message)> say)
    : m_say(std::move(say)), m_names(slowOnes(files)) {
    if (!m_names.empty())
        m_thread = std::thread([this] { wait(); });
}

WaitingNotice::~WaitingNotice() {
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_hasEnded = true;
    }
    m_ended.notify_one();
    m_thread.join();
}

void WaitingNotice::wait() {
    std::unique_lock lock(m_mutex);
    if (!m_ended.wait_for(lock, patience, [this] { return m_hasEnded; }))
        m_say("waiting for " + m_names + ", a pipe or a device");
}

} // namespace torvik
