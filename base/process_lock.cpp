// SPDX-License-Identifier: MIT
#include "base/process_lock.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace torvik {

#ifdef _WIN32

ProcessLock::Result ProcessLock::tryLock(const std::filesystem::path& file) {
    release();
    // Nobody else can open it as long as this handle is open.
    HANDLE const opened = CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
    if (opened == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION ? Result::heldByOther : Result::impossible;
    m_file = opened;
    return Result::held;
}

void ProcessLock::release() {
    if (m_file != nullptr)
        CloseHandle(m_file);
    m_file = nullptr;
}

#else

ProcessLock::Result ProcessLock::tryLock(const std::filesystem::path& file) {
    constexpr int ownAlone = 0600;
    release();
    m_file = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, ownAlone);
    if (m_file < 0)
        return Result::impossible;
    if (::flock(m_file, LOCK_EX | LOCK_NB) == 0)
        return Result::held;
    const bool isHeld = errno == EWOULDBLOCK;
    release();
    return isHeld ? Result::heldByOther : Result::impossible;
}

void ProcessLock::release() {
    if (m_file >= 0)
        ::close(m_file);
    m_file = -1;
}

#endif

} // namespace torvik
