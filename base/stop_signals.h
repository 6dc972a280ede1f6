// SPDX-License-Identifier: MIT
// Being stopped from outside: Ctrl+C, the end of a session, a closed terminal (SIGINT, SIGTERM,
// SIGHUP). Files that are there for a moment only are removed, and work that must not be cut in two
// is ended first. Windows sends programs no such signals; there all this does nothing.
#pragma once

#include <filesystem>

namespace torvik {

// To be called once, by the program's main. A signal that the caller has switched off stays so.
void tidyUpWhenStopped();

// While it lives, a file of this name is removed when the program is stopped. At most 16 at a time
// are known; what goes beyond is left to the next run.
class RemovedWhenStopped {
public:
    explicit RemovedWhenStopped(const std::filesystem::path& file);
    ~RemovedWhenStopped();
    RemovedWhenStopped(const RemovedWhenStopped&) = delete;
    RemovedWhenStopped& operator=(const RemovedWhenStopped&) = delete;

private:
    int m_place;
};

// While it lives, a stop waits. A second one does not: the disk may hang.
class StopWaits {
public:
    StopWaits();
    ~StopWaits();
    StopWaits(const StopWaits&) = delete;
    StopWaits& operator=(const StopWaits&) = delete;
};

} // namespace torvik
