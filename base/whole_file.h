// SPDX-License-Identifier: MIT
// Saving a file whole: it is written without a name, or under one that nobody else has, in the
// folder that it goes to, and takes its own name when it is complete. Whatever fails, and whoever
// stops the program, leaves the old file as it was and nothing beside it.
#pragma once

#include "base/byte_sink.h"
#include "base/errors.h"
#include "base/pending_name.h"

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
    // Ends the writing; the bytes are on the disk. Raises what the first failed write raised, also
    // where an error trap caught that, and FileError where the system cannot keep the bytes.
    void close();
    // Closes the file and gives it its own name. Raises FileError.
    void commit();
    // The same for two that belong together: both or none. Raises FileError.
    friend void commitBoth(WholeFile& first, WholeFile& second);

private:
    void open();
    [[noreturn]] void fail(const std::string& what);
    void makeSure();
    void takeName();
    void keepOld();
    void withdraw();

    std::filesystem::path m_target;
    std::string m_name; // as the user knows it
    int m_descriptor = -1;
    bool m_isNameless = false;
    std::optional<PendingName> m_pending;
    std::optional<PendingName> m_old; // the file that is replaced, until both are in their places
    std::optional<FileError> m_failure;
};

void commitBoth(WholeFile& first, WholeFile& second);

// The bytes as the whole content of the file. Raises FileError.
void saveWhole(const std::filesystem::path& target, std::string_view bytes);

// The name of a file that was saved is on the disk, as its bytes are already: neither the end of
// the power nor a stick that is taken out undoes the save. Raises FileError; the file is then
// there, but may not last.
void makeDurable(const std::filesystem::path& saved);

} // namespace torvik
