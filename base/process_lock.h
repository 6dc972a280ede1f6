// SPDX-License-Identifier: MIT
// A lock that one process at a time can hold. It hangs on an open file, so the system frees it when
// its holder ends, however that happens; a file that is left behind locks nothing.
#pragma once

#include <cstdint>
#include <filesystem>

namespace torvik {

class ProcessLock {
public:
    enum class Result : std::uint8_t {
        held,
        heldByOther,
        impossible, // the file cannot be opened, or its file system knows no locks
    };

    ProcessLock() = default;
    ~ProcessLock() { release(); }
    ProcessLock(const ProcessLock&) = delete;
    ProcessLock& operator=(const ProcessLock&) = delete;
    ProcessLock(ProcessLock&&) = delete;
    ProcessLock& operator=(ProcessLock&&) = delete;

    // Takes the lock until this object ends; makes the file where it is missing. Never waits.
    Result tryLock(const std::filesystem::path& file);
    void release();

private:
#ifdef _WIN32
    void* m_file = nullptr;
#else
    int m_file = -1;
#endif
};

} // namespace torvik
