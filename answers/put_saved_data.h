// SPDX-License-Identifier: MIT
// Keeps the answers given for a drawing; saved_settings.h reads them back.
#pragma once

#include <filesystem>

namespace torvik {

struct Job;
struct ToolList;
class Logger;

// Keeps the job's answers in the folder, which is created where missing. A damaged file of the
// drawing's is put aside first, with ".damaged" behind its name. All or nothing: where the file
// cannot be written, this is logged and reported, the earlier file stays, and the result is
// False.
bool PutSavedData(const Job& job, const ToolList& tools, const std::filesystem::path& folder,
                  Logger& logger);

} // namespace torvik
