// SPDX-License-Identifier: MIT
// Saving a file whole: it is written under a name that nobody else has, in the folder that it goes
// to, and takes its own name when it is complete. Whatever fails leaves the old file as it was, and
// nothing beside it.
#pragma once

#include "base/byte_sink.h"
#include "base/errors.h"

#include <filesystem>
#include <optional>

namespace torvik {

class WholeFile final : public ByteSink {
public:
    // Where the name is a link, the file it leads to is meant. Raises FileError for a folder, for
    // what is no ordinary file, for a file that may not be written, and where the folder takes no
    // new file. A file that is replaced keeps its rights and, where the system allows it, its
    // owner.
    explicit WholeFile(const std::filesystem::path& target);
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;
    ~WholeFile() override;

    void write(std::string_view bytes) override;
    // Ends the writing. Raises what the first failed write raised, also where an error trap caught
    // that, and FileError where the system cannot keep the bytes.
    void close();
    enum class WayBack { none, kept };
    // Closes the file and gives it its own name. Raises FileError.
    void commit(WayBack wayBack = WayBack::none);
    // Takes a file back that was committed with a way back: what was there before comes again.
    void withdraw();

private:
    void open();
    [[noreturn]] void fail(const std::string& what);
    void keepOld();
    void dropOld();

    std::filesystem::path m_target;
    std::string m_name; // as the user knows it
    std::filesystem::path m_pending;
    std::filesystem::path m_old; // the file that was replaced, until this one goes
    int m_descriptor = -1;
    bool m_committed = false;
    std::optional<FileError> m_failure;
};

// The bytes as the whole content of the file. Raises FileError.
void saveWhole(const std::filesystem::path& target, std::string_view bytes);

} // namespace torvik
