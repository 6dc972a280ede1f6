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

// The answers in a file's text where they are the drawing's: then the outcome is "taken". Raises
// FileError for what cannot be understood.
SavedOutcome understand(std::string_view text, const Job& job, const std::filesystem::path& file,
                        SavedAnswers& answers) {
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    if (!text.empty() && savedDigest(text) != job.drawing.gstrDigest)
        return SavedOutcome::digestDiffers;
    answers = parseAnswers(text, answersShape(job), utf8FromPath(file));
    return SavedOutcome::taken;
}

bool isMissing(const std::filesystem::path& file) {
    std::error_code unknown;
    return std::filesystem::status(file, unknown).type() == std::filesystem::file_type::not_found;
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
            if (isMissing(file))
                return;
            SavedAnswers answers;
            data.outcome = understand(readWholeFile(file, maxSavedBytes), job, file, answers);
            if (data.outcome != SavedOutcome::taken)
                return;
            takeAnswers(job, std::move(answers), tools);
            job.answers.gblnSavedFound = true;
        } catch (const RunTimeError& error) {
            data = {SavedOutcome::damaged, error.what()};
            throw;
        }
    });
    return data;
}

bool isDamaged(const Job& job, const std::filesystem::path& file) {
    if (isMissing(file))
        return false;
    const std::string text = readWholeFile(file, maxSavedBytes);
    try {
        SavedAnswers answers;
        understand(text, job, file, answers);
        return false;
    } catch (const RunTimeError&) {
        return true;
    }
}

} // namespace torvik
