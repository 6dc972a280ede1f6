// SPDX-License-Identifier: MIT
#include "answers/put_saved_data.h"

#include "answers/saved_answers.h"
#include "answers/saved_names.h"
#include "base/error_trap.h"
#include "base/errors.h"
#include "base/files.h"
#include "base/whole_file.h"
#include "job/job.h"

namespace torvik {
bool PutSavedData(const Job& job, const ToolList& tools, const std::filesystem::path& folder,
                  Logger& logger) {
    return withErrorTrap(logger, {"PutSavedData", "modHpgl"}, [&] {
        std::error_code error;
        std::filesystem::create_directories(folder, error);
        if (error)
            throw FileError(utf8FromPath(folder),
                            "the folder cannot be created: " + error.message());
        saveWhole(folder / pathFromUtf8(savedFileName(job.drawing.gstrPlotFile)),
                  formatAnswers(answersOfJob(job, tools)));
    });
}

} // namespace torvik
