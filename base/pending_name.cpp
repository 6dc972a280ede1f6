// SPDX-License-Identifier: MIT
#include "base/pending_name.h"

#include <chrono>
#include <mutex>
#include <random>
#include <set>
#include <string>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace torvik {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view opening = ".torvik-";
constexpr std::string_view digits = "0123456789abcdef";
constexpr std::size_t digitCount = 16;
constexpr std::size_t kindSize = 4;

fs::path strangeName(const fs::path& target, std::string_view kind) {
    std::random_device random;
    std::string name(opening);
    for (std::size_t i = 0; i < digitCount; ++i)
        name += digits[random() % digits.size()];
    return target.parent_path() / name.append(kind);
}

bool isStrangeName(const fs::path& file) {
    const std::u8string wide = file.filename().u8string();
    const std::string name(wide.begin(), wide.end());
    if (name.size() != opening.size() + digitCount + kindSize || !name.starts_with(opening))
        return false;
    const std::string_view middle = std::string_view(name).substr(opening.size(), digitCount);
    return middle.find_first_not_of(digits) == std::string_view::npos &&
           (name.ends_with(".new") || name.ends_with(".old"));
}

constexpr std::chrono::hours leftOverAge{24};

#ifdef _WIN32

// A second name has the times of the first there, so that its own age is not known.
bool isLeftOver(const fs::path& file) {
    std::error_code error;
    const auto time = fs::last_write_time(file, error);
    return !error && file.extension() == ".new" &&
           fs::file_time_type::clock::now() - time > leftOverAge;
}

#else

bool isLeftOver(const fs::path& file) {
    struct stat status {};
    if (lstat(file.c_str(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != geteuid())
        return false;
    // The name is as old as the bytes, but where it is a second one for an old file.
    const auto time = file.extension() == ".old" ? status.st_ctime : status.st_mtime;
    return std::chrono::system_clock::now() - std::chrono::system_clock::from_time_t(time) >
           leftOverAge;
}

#endif

bool isFirstTime(const fs::path& folder) {
    static std::mutex mutex;
    static std::set<fs::path> seen;
    const std::lock_guard lock(mutex);
    return seen.insert(folder).second;
}

} // namespace

PendingName::PendingName(const fs::path& target, std::string_view kind)
    : m_path(strangeName(target, kind)), m_removal(m_path) {}

PendingName::~PendingName() {
    std::error_code ignored;
    if (!m_isKept)
        fs::remove(m_path, ignored);
}

void removeLeftOvers(const fs::path& folder) {
    if (!isFirstTime(folder))
        return;
    std::error_code error;
    fs::directory_iterator entry(folder.empty() ? fs::path(".") : folder, error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        if (isStrangeName(entry->path()) && isLeftOver(entry->path()))
            fs::remove(entry->path(), ignored);
    }
}

} // namespace torvik
