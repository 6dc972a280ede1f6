// SPDX-License-Identifier: MIT
// Names for files that are there for a moment only, while another is saved. They stand in the
// folder of the file that is saved, nobody can guess them, and what a run that was killed leaves
// behind goes with a later run.
#pragma once

#include "base/stop_signals.h"

#include <filesystem>
#include <string_view>

namespace torvik {

class PendingName {
public:
    // A name beside the target that no file has, ending in `kind` (".new", ".old"). The file that
    // gets it is removed with this object, and when the program is stopped.
    PendingName(const std::filesystem::path& target, std::string_view kind);
    ~PendingName();
    PendingName(const PendingName&) = delete;
    PendingName& operator=(const PendingName&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    // The file stays.
    void keep() { m_isKept = true; }

private:
    std::filesystem::path m_path;
    RemovedWhenStopped m_removal;
    bool m_isKept = false;
};

// Removes the files of such names in the folder that are the user's own and older than a day. A
// folder is looked through once in a run.
void removeLeftOvers(const std::filesystem::path& folder);

} // namespace torvik
