// SPDX-License-Identifier: MIT
#include "answers/import_drawing.h"

#include "answers/digest.h"
#include "answers/saved_names.h"
#include "base/files.h"
#include "job/colour_tree.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "job/pens.h"

namespace torvik {

ImportResult importDrawing(Job& job, const std::filesystem::path& drawing, const ToolList& tools,
                           const std::filesystem::path& savedSettingsFolder, Logger& logger) {
    const std::string name = savedFileName(utf8FromPath(drawing));
    return importDrawingWithAnswers(job, drawing, tools, savedSettingsFolder / pathFromUtf8(name),
                                    logger);
}

ImportResult importDrawingWithAnswers(Job& job, const std::filesystem::path& drawing,
                                      const ToolList& tools,
                                      const std::filesystem::path& answersFile, Logger& logger) {
    ImportResult result;
    result.imported = readDrawing(job, drawing, logger);
    if (result.imported) {
        result.saved = GetSavedDataFrom(job, tools, answersFile, logger);
        CreateTree(job.answers, job.position, logger);
    }
    return result;
}

bool readDrawing(Job& job, const std::filesystem::path& drawing, Logger& logger) {
    std::string digest;
    if (blnGetCommands(job, drawing, logger,
                       [&](std::string_view bytes) { digest = digestOf(bytes); }) &&
        SetUpPens(job, logger)) {
        job.drawing.gstrDigest = std::move(digest);
        return true;
    }
    ClearData(job);
    return false;
}

} // namespace torvik
