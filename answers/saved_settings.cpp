// SPDX-License-Identifier: MIT
#include "answers/saved_settings.h"

#include "answers/saved_answers.h"
#include "answers/saved_names.h"
#include "base/error_trap.h"
#include "base/errors.h"
#include "base/files.h"
#include "job/job.h"
#include "tools/tool_list.h"

namespace torvik {
namespace {

// What some editors put before a text in UTF-8.
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

// The answers in the file where they are the drawing's: then the outcome is "taken". Raises
// FileError for a file that cannot be read or understood.
SavedOutcome readAnswers(const Job& job, const std::filesystem::path& file, SavedAnswers& answers) {
    std::error_code unknown;
    if (std::filesystem::status(file, unknown).type() == std::filesystem::file_type::not_found)
        return SavedOutcome::none;
    const std::string bytes = readWholeFile(file, maxSavedBytes);
    std::string_view text = bytes;
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    if (!text.empty() && savedDigest(text) != job.drawing.gstrDigest)
        return SavedOutcome::digestDiffers;
    answers = parseAnswers(text, answersShape(job), utf8FromPath(file));
    return SavedOutcome::taken;
}

} // namespace

SavedData GetSavedData(Job& job, const ToolList& tools, const std::filesystem::path& folder,
                       Logger& logger) {
    return GetSavedDataFrom(job, tools,
                            folder / pathFromUtf8(savedFileName(job.drawing.gstrPlotFile)), logger);
}

SavedData GetSavedDataFrom(Job& job, const ToolList& tools, const std::filesystem::path& file,
                           Logger& logger) {
    SavedData data;
    withQuietErrorTrap(logger, {"GetSavedData", "modHpgl"}, [&] {
        try {
            job.answers.gstrSavedFile = utf8FromPath(file);
            SavedAnswers answers;
            data.outcome = readAnswers(job, file, answers);
            if (data.outcome != SavedOutcome::taken)
                return;
            takeAnswers(job, std::move(answers), tools, logger);
            job.answers.gblnSavedFound = true;
        } catch (const RunTimeError& error) {
            data = {SavedOutcome::damaged, error.what()};
            throw;
        }
    });
    return data;
}

bool isDamaged(const Job& job, const std::filesystem::path& file) {
    try {
        SavedAnswers answers;
        readAnswers(job, file, answers);
        return false;
    } catch (const RunTimeError&) {
        return true;
    }
}

} // namespace torvik
