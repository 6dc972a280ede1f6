// SPDX-License-Identifier: MIT
#include "base/whole_file.h"

#include "base/files.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <random>

#ifdef _WIN32
#include <io.h>
#include <sys/stat.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace torvik {
namespace {

namespace fs = std::filesystem;

constexpr int namesToTry = 100;

// A name beside the target that nobody can guess.
fs::path strangeName(const fs::path& target, const char* kind) {
    constexpr std::string_view digits = "0123456789abcdef";
    constexpr int length = 16;
    std::random_device random;
    std::string name = ".torvik-";
    for (int i = 0; i < length; ++i)
        name += digits[random() % digits.size()];
    return target.parent_path() / (name + kind);
}

#ifdef _WIN32

int createNew(const fs::path& file) {
    return _wopen(file.c_str(), _O_WRONLY | _O_CREAT | _O_EXCL | _O_BINARY | _O_NOINHERIT,
                  _S_IREAD | _S_IWRITE);
}

long put(int descriptor, const char* bytes, std::size_t size) {
    constexpr std::size_t most = std::size_t{1} << 30;
    return _write(descriptor, bytes, static_cast<unsigned>(std::min(size, most)));
}

int shut(int descriptor) {
    return _close(descriptor);
}

bool mayBeReplaced(const fs::path& file) {
    return _waccess(file.c_str(), 2) == 0;
}

void takeRights(int, const fs::path&) {}

#else

int createNew(const fs::path& file) {
    constexpr mode_t forAll = 0666; // less what the user's mask takes
    return ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, forAll);
}

long put(int descriptor, const char* bytes, std::size_t size) {
    return ::write(descriptor, bytes, size);
}

int shut(int descriptor) {
    return ::close(descriptor);
}

bool mayBeReplaced(const fs::path& file) {
    return ::access(file.c_str(), W_OK) == 0;
}

// What the system does not allow stays as it is.
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

// The file to write. Refuses what cannot be replaced by a file.
fs::path realTarget(const fs::path& file) {
    const std::string name = utf8FromPath(file);
    std::error_code error;
    const auto status = fs::status(file, error);
    if (status.type() == fs::file_type::none)
        throw FileError(name, "the file cannot be written: " + error.message());
    if (!fs::exists(status))
        return fs::is_symlink(fs::symlink_status(file, error)) ? fs::weakly_canonical(file) : file;
    if (fs::is_directory(status))
        throw FileError(name, "there is a folder of this name");
    if (!fs::is_regular_file(status))
        throw FileError(name, "this is no ordinary file");
    errno = 0;
    if (!mayBeReplaced(file))
        throw FileError(name, "the file cannot be written: " + systemErrorText());
    fs::path real = fs::canonical(file, error);
    if (error)
        throw FileError(name, "the file cannot be replaced: " + error.message());
    return real;
}

} // namespace

WholeFile::WholeFile(const fs::path& target)
    : m_target(realTarget(target)), m_name(utf8FromPath(target)) {
    open();
    takeRights(m_descriptor, m_target);
}

WholeFile::~WholeFile() {
    if (m_descriptor >= 0)
        shut(m_descriptor);
    std::error_code ignored;
    if (!m_committed)
        fs::remove(m_pending, ignored);
    dropOld();
}

void WholeFile::open() {
    for (int i = 0; i < namesToTry && m_descriptor < 0; ++i) {
        m_pending = strangeName(m_target, ".new");
        errno = 0;
        m_descriptor = createNew(m_pending);
        if (m_descriptor < 0 && errno != EEXIST)
            break;
    }
    if (m_descriptor < 0)
        fail("the file cannot be opened for writing: " + systemErrorText());
}

void WholeFile::fail(const std::string& what) {
    const FileError error(m_name, what);
    if (!m_failure)
        m_failure = error;
    throw error;
}

void WholeFile::write(std::string_view bytes) {
    while (!bytes.empty()) {
        errno = 0;
        const long written = put(m_descriptor, bytes.data(), bytes.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            fail("the file cannot be written: " + systemErrorText());
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

void WholeFile::close() {
    if (m_descriptor >= 0) {
        errno = 0;
        const int descriptor = m_descriptor;
        m_descriptor = -1;
        if (shut(descriptor) != 0 && !m_failure)
            fail("the file cannot be written to its end: " + systemErrorText());
    }
    if (m_failure)
        throw FileError(*m_failure);
}

// A second name for the file that is replaced, so that it can come back.
void WholeFile::keepOld() {
    std::error_code error;
    if (!fs::exists(m_target, error))
        return;
    m_old = strangeName(m_target, ".old");
    fs::create_hard_link(m_target, m_old, error);
    if (error) // a disk that knows no second names
        fs::copy_file(m_target, m_old, error);
    if (error) {
        const std::string cause = error.message();
        dropOld();
        fail("the file cannot be replaced: " + cause);
    }
}

void WholeFile::dropOld() {
    std::error_code ignored;
    if (!m_old.empty())
        fs::remove(m_old, ignored);
    m_old.clear();
}

void WholeFile::commit(WayBack wayBack) {
    close();
    if (wayBack == WayBack::kept)
        keepOld();
    std::error_code error;
    fs::rename(m_pending, m_target, error);
    if (error)
        fail("the file cannot be written: " + error.message());
    m_committed = true;
}

void WholeFile::withdraw() {
    if (!m_committed)
        return;
    std::error_code ignored;
    if (m_old.empty())
        fs::remove(m_target, ignored);
    else
        fs::rename(m_old, m_target, ignored);
    m_old.clear();
}

void saveWhole(const fs::path& target, std::string_view bytes) {
    WholeFile file(target);
    file.write(bytes);
    file.commit();
}

} // namespace torvik
