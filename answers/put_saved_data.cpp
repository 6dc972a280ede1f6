// SPDX-License-Identifier: MIT
#include "answers/put_saved_data.h"

#include "answers/saved_answers.h"
#include "answers/saved_names.h"
#include "base/error_trap.h"
#include "base/files.h"
#include "base/whole_file.h"
#include "job/job.h"

namespace torvik {
bool PutSavedData(const Job& job, const ToolList& tools, const std::filesystem::path& folder,
                  Logger& logger) {
    return withErrorTrap(logger, {"PutSavedData", "modHpgl"}, [&] {
        makeFolder(folder);
        saveWhole(folder / pathFromUtf8(savedFileName(job.drawing.gstrPlotFile)),
                  formatAnswers(answersOfJob(job, tools)));
    });
}

} // namespace torvik
