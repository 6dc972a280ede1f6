// SPDX-License-Identifier: MIT
#include "answers/put_saved_data.h"

#include "answers/saved_answers.h"
#include "answers/saved_names.h"
#include "answers/saved_settings.h"
#include "base/error_trap.h"
#include "base/errors.h"
#include "base/files.h"
#include "base/whole_file.h"
#include "job/job.h"

namespace torvik {
namespace {

// What may still be of use to its user is not written over.
void putAside(const Job& job, const std::filesystem::path& file) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(file, error) || !isDamaged(job, file))
        return;
    std::filesystem::rename(file, std::filesystem::path(file) += ".damaged", error);
    if (error)
        throw FileError(utf8FromPath(file),
                        "the damaged file cannot be put aside: " + error.message());
}

} // namespace

bool PutSavedData(const Job& job, const ToolList& tools, const std::filesystem::path& folder,
                  Logger& logger) {
    return withErrorTrap(logger, {"PutSavedData", "modHpgl"}, [&] {
        makeFolder(folder);
        const std::string answers = formatAnswers(answersOfJob(job, tools));
        const auto file = folder / pathFromUtf8(savedFileName(job.drawing.gstrPlotFile));
        putAside(job, file);
        saveWhole(file, answers);
    });
}

} // namespace torvik
