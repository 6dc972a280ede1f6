// SPDX-License-Identifier: MIT
#include "commands/overwriting.h"

#include "base/errors.h"
#include "base/files.h"

namespace torvik {

void requireFree(const std::filesystem::path& output, bool overwrite) {
    const std::string name = utf8FromPath(output);
    std::error_code error;
    const auto status = std::filesystem::status(output, error);
    if (!std::filesystem::exists(status))
        return;
    if (std::filesystem::is_directory(status))
        throw FileError(name, "there is a folder of this name");
    if (!std::filesystem::is_regular_file(status))
        throw FileError(name, "this is no ordinary file");
    if (!overwrite)
        throw FileError(name, "the file exists already; --force overwrites it");
}

} // namespace torvik
