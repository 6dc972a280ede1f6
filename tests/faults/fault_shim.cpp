// SPDX-License-Identifier: MIT
#include "tests/faults/fault_shim.h"

#include "tests/faults/fault_order.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace {

const Fault* armed = nullptr;
int seen = 0;
int made = 0;

// The system's own function of this name.
template <typename Function>
Function* next(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

bool isInside(const char* path) {
    if (armed == nullptr || path == nullptr)
        return false;
    const std::size_t size = std::strlen(armed->folder);
    return std::strncmp(path, armed->folder, size) == 0 &&
           (path[size] == '/' || path[size] == '\0');
}

// The name of an open file.
struct OpenName {
    explicit OpenName(int descriptor) {
        const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
        if (armed == nullptr || readlink(link.c_str(), path, sizeof path - 1) < 0)
            path[0] = '\0';
    }
    operator const char*() const { return path; }
    char path[PATH_MAX] = {};
};

int errorOf(Call call) {
    if (armed->error != usualFailure)
        return armed->error;
    return call == Call::sync || call == Call::close ? EIO : ENOSPC;
}

bool isTurn() {
    if (seen == armed->k)
        return true;
    const bool again = armed->error == EINTR || armed->error == halfWritten;
    return armed->forEver && seen > armed->k && (!again || (seen - armed->k) % 2 == 0);
}

// Whether the call is to fail; errno then says why.
bool fails(Call call, const char* where) {
    if (!isInside(where))
        return false;
    const bool counts = armed->call == call || armed->call == Call::any;
    seen += counts ? 1 : 0;
    const bool failing = counts && isTurn();
    noteCall(call, where, failing);
    if (!failing)
        return false;
    ++made;
    if (armed->error == killed)
        kill(getpid(), SIGKILL);
    errno = errorOf(call);
    return true;
}

bool fails(Call call, int descriptor) {
    return armed != nullptr && fails(call, OpenName(descriptor));
}

bool isUnknownTo(const char* path) {
    errno = EOPNOTSUPP;
    return isInside(path) && armed->plainDisk;
}

int openOther(const char* function, const char* path, int flags, mode_t mode) {
    if (fails(Call::open, path) || ((flags & O_TMPFILE) == O_TMPFILE && isUnknownTo(path)))
        return -1;
    return next<int(const char*, int, ...)>(function)(path, flags, mode);
}

mode_t modeIn(va_list arguments, int flags) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

} // namespace

extern "C" {

void torvikArmFault(const Fault* fault) {
    armed = fault;
    seen = 0;
    made = 0;
}

int torvikFaultsMade() {
    return made;
}

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeIn(rest, flags);
    va_end(rest);
    return openOther("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeIn(rest, flags);
    va_end(rest);
    return openOther("open64", path, flags, mode);
}

FILE* fopen(const char* path, const char* mode) {
    return fails(Call::open, path) ? nullptr
                                   : next<FILE*(const char*, const char*)>("fopen")(path, mode);
}

FILE* fopen64(const char* path, const char* mode) {
    return fails(Call::open, path) ? nullptr
                                   : next<FILE*(const char*, const char*)>("fopen64")(path, mode);
}

ssize_t write(int file, const void* bytes, size_t size) {
    const auto real = next<ssize_t(int, const void*, size_t)>("write");
    if (!fails(Call::write, file))
        return real(file, bytes, size);
    return armed->error == halfWritten ? real(file, bytes, (size + 1) / 2) : -1;
}

ssize_t writev(int file, const iovec* parts, int count) {
    return fails(Call::write, file)
               ? -1
               : next<ssize_t(int, const iovec*, int)>("writev")(file, parts, count);
}

ssize_t sendfile(int to, int from, off_t* at, size_t size) noexcept {
    return fails(Call::write, to)
               ? -1
               : next<ssize_t(int, int, off_t*, size_t)>("sendfile")(to, from, at, size);
}

int fsync(int file) {
    return fails(Call::sync, file) ? -1 : next<int(int)>("fsync")(file);
}

int fdatasync(int file) {
    return fails(Call::sync, file) ? -1 : next<int(int)>("fdatasync")(file);
}

int rename(const char* from, const char* to) noexcept {
    return fails(Call::rename, to) ? -1 : next<int(const char*, const char*)>("rename")(from, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to,
              unsigned flags) noexcept {
    return fails(Call::rename, to) ? -1
                                   : next<int(int, const char*, int, const char*, unsigned)>(
                                         "renameat2")(fromFolder, from, toFolder, to, flags);
}

int link(const char* from, const char* to) noexcept {
    return fails(Call::link, to) || isUnknownTo(to)
               ? -1
               : next<int(const char*, const char*)>("link")(from, to);
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    return fails(Call::link, to) || isUnknownTo(to)
               ? -1
               : next<int(int, const char*, int, const char*, int)>("linkat")(fromFolder, from,
                                                                              toFolder, to, flags);
}

int stat(const char* path, struct stat* found) noexcept {
    return fails(Call::stat, path) ? -1 : next<int(const char*, struct stat*)>("stat")(path, found);
}

int stat64(const char* path, struct stat64* found) noexcept {
    return fails(Call::stat, path) ? -1
                                   : next<int(const char*, struct stat64*)>("stat64")(path, found);
}

int lstat(const char* path, struct stat* found) noexcept {
    return fails(Call::stat, path) ? -1
                                   : next<int(const char*, struct stat*)>("lstat")(path, found);
}

int lstat64(const char* path, struct stat64* found) noexcept {
    return fails(Call::stat, path) ? -1
                                   : next<int(const char*, struct stat64*)>("lstat64")(path, found);
}

int statx(int folder, const char* path, int flags, unsigned wanted, struct statx* found) noexcept {
    return fails(Call::stat, path) ? -1
                                   : next<int(int, const char*, int, unsigned, struct statx*)>(
                                         "statx")(folder, path, flags, wanted, found);
}

int access(const char* path, int rights) noexcept {
    return fails(Call::stat, path) ? -1 : next<int(const char*, int)>("access")(path, rights);
}

// The disk that the system is asked for stands where the environment says.
char* realpath(const char* path, char* resolved) noexcept {
    const char* const disk = std::getenv("TORVIK_TEST_DISK");
    const bool isDisk = disk != nullptr && std::strncmp(path, "/sys/dev/block/", 15) == 0;
    return next<char*(const char*, char*)>("realpath")(isDisk ? disk : path, resolved);
}

int unlink(const char* path) noexcept {
    return fails(Call::remove, path) ? -1 : next<int(const char*)>("unlink")(path);
}

// What fails to close is closed all the same.
int close(int file) {
    const bool failing = fails(Call::close, file);
    const int result = next<int(int)>("close")(file);
    if (!failing)
        return result;
    errno = EIO;
    return -1;
}

} // extern "C"
