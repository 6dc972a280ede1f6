// SPDX-License-Identifier: MIT
#include "tests/faults/fault_shim.h"

#include <cerrno>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <sys/sendfile.h>
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
    if (armed == nullptr)
        return false;
    const std::size_t size = std::strlen(armed->folder);
    return std::strncmp(path, armed->folder, size) == 0 &&
           (path[size] == '/' || path[size] == '\0');
}

bool isInside(int descriptor) {
    if (armed == nullptr)
        return false;
    char path[PATH_MAX] = {};
    const std::string name = "/proc/self/fd/" + std::to_string(descriptor);
    return readlink(name.c_str(), path, sizeof path - 1) > 0 && isInside(path);
}

template <typename Where>
bool fails(Call call, Where where) {
    if (!isInside(where) || armed->call != call)
        return false;
    ++seen;
    if (seen < armed->k || (seen > armed->k && !armed->forEver))
        return false;
    ++made;
    errno = call == Call::sync || call == Call::close ? EIO : ENOSPC;
    return true;
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
    return fails(Call::write, file)
               ? -1
               : next<ssize_t(int, const void*, size_t)>("write")(file, bytes, size);
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
