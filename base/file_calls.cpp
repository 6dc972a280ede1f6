// SPDX-License-Identifier: MIT
#include "base/file_calls.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace torvik::calls {

namespace fs = std::filesystem;

#ifdef _WIN32

int createNew(const fs::path& file) {
    return _wopen(file.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                  _S_IREAD | _S_IWRITE);
}

int createNameless(const fs::path&) {
    return -1;
}

int giveName(int, const fs::path&) {
    return -1;
}

long put(int descriptor, const char* bytes, std::size_t size) {
    constexpr std::size_t most = std::size_t{1} << 30;
    return _write(descriptor, bytes, static_cast<unsigned>(std::min(size, most)));
}

int sync(int descriptor) {
    return _commit(descriptor);
}

// The folder's entry goes with the file.
int syncName(const fs::path& file) {
    const int descriptor = _wopen(file.c_str(), _O_WRONLY | _O_BINARY | _O_NOINHERIT);
    if (descriptor < 0)
        return -1;
    const int result = _commit(descriptor);
    return _close(descriptor) == 0 ? result : -1;
}

int shut(int descriptor) {
    return _close(descriptor);
}

bool mayBeReplaced(const fs::path& file) {
    return _waccess(file.c_str(), 2) == 0;
}

void takeRights(int, const fs::path&) {}

#else

namespace {

constexpr mode_t forAll = 0666; // less what the user's mask takes

// A disk that interrupts for ever is left all the same.
template <typename Call>
auto uninterrupted(Call call) {
    constexpr int mostTimes = 1000;
    auto result = call();
    for (int i = 0; i < mostTimes && result < 0 && errno == EINTR; ++i)
        result = call();
    return result;
}

int openPlace(const fs::path& place, int flags) {
    return uninterrupted([&] { return ::open(place.c_str(), flags | O_CLOEXEC, forAll); });
}

#ifdef O_TMPFILE
std::string openFileName(int descriptor) {
    return "/proc/self/fd/" + std::to_string(descriptor);
}
#endif

} // namespace

int createNew(const fs::path& file) {
    return openPlace(file, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW);
}

#ifdef O_TMPFILE

int createNameless(const fs::path& folder) {
    const int descriptor = openPlace(folder.empty() ? "." : folder, O_WRONLY | O_TMPFILE);
    // The name is given by way of this one, which not every system has.
    if (descriptor >= 0 && ::access(openFileName(descriptor).c_str(), F_OK) != 0) {
        ::close(descriptor);
        return -1;
    }
    return descriptor;
}

int giveName(int descriptor, const fs::path& file) {
    return ::linkat(AT_FDCWD, openFileName(descriptor).c_str(), AT_FDCWD, file.c_str(),
                    AT_SYMLINK_FOLLOW);
}

#else

int createNameless(const fs::path&) {
    return -1;
}

int giveName(int, const fs::path&) {
    return -1;
}

#endif

long put(int descriptor, const char* bytes, std::size_t size) {
    return uninterrupted([&] { return ::write(descriptor, bytes, size); });
}

int sync(int descriptor) {
    const int result = uninterrupted([&] { return ::fsync(descriptor); });
    return result != 0 && (errno == EINVAL || errno == ENOTSUP || errno == ENOSYS) ? 0 : result;
}

int syncName(const fs::path& file) {
    const int folder = openPlace(file.parent_path(), O_RDONLY | O_DIRECTORY);
    if (folder < 0)
        return -1;
    const int result = sync(folder);
    const int cause = errno;
    ::close(folder); // nothing was written by way of it
    errno = cause;
    return result;
}

int shut(int descriptor) {
    const int result = ::close(descriptor);
    return result != 0 && errno == EINTR ? 0 : result; // it is closed all the same
}

bool mayBeReplaced(const fs::path& file) {
    constexpr mode_t anyWrite = 0222;
    struct stat status {};
    if (::stat(file.c_str(), &status) != 0)
        return false;
    if ((status.st_mode & anyWrite) == 0) {
        errno = EACCES;
        return false;
    }
    return ::access(file.c_str(), W_OK) == 0;
}

void takeRights(int descriptor, const fs::path& from) {
    constexpr mode_t rights = 07777;
    struct stat status {};
    if (::stat(from.c_str(), &status) != 0)
        return;
    if (::fchown(descriptor, status.st_uid, status.st_gid) != 0)
        errno = 0;
    if (::fchmod(descriptor, status.st_mode & rights) != 0)
        errno = 0;
}

#endif

} // namespace torvik::calls
