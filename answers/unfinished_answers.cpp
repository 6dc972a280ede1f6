// SPDX-License-Identifier: MIT
#include "answers/unfinished_answers.h"

#include "answers/pen_values.h"
#include "answers/saved_answers.h"
#include "answers/saved_names.h"
#include "base/errors.h"
#include "base/files.h"
#include "base/whole_file.h"
#include "job/job.h"

#include <utility>

namespace torvik {
namespace {

// The texts of the boxes on top of the answers.
constexpr std::size_t maxUnfinishedBytes = maxSavedBytes + (std::size_t{1} << 20);

std::filesystem::path fileOf(const Job& job) {
    return unfinishedFile(pathFromUtf8(job.answers.gstrSavedFile));
}

// An order that was not set yet is no answer.
std::string answersText(const Job& job, const ToolList& tools) {
    SavedAnswers answers = answersOfJob(job, tools);
    if (!job.answers.gblnOrderSet)
        answers.order.fill(0);
    return formatAnswers(answers);
}

} // namespace

std::optional<Unfinished> findUnfinished(const Job& job) {
    const auto file = fileOf(job);
    std::error_code unknown;
    if (job.answers.gstrSavedFile.empty() || !std::filesystem::exists(file, unknown))
        return std::nullopt;
    const std::string name = utf8FromPath(file);
    std::string bytes = readWholeFile(file, maxUnfinishedBytes);
    UnfinishedText text = parseUnfinished(bytes, name);
    if (savedDigest(text.answers) != job.drawing.gstrDigest)
        return std::nullopt;
    return Unfinished{file, std::move(bytes), text.place, std::move(text.boxes),
                      parseAnswers(text.answers, answersShape(job), name)};
}

void takeUnfinished(Job& job, SavedAnswers answers, const ToolList& tools) {
    takeAnswers(job, std::move(answers), tools);
    for (std::int16_t number = 1; number <= penCount; ++number) {
        const Pen& pen = job.answers.gudtPens[number];
        for (int size = 0; pen.blnUsed && size <= pen.intRadiusCount; ++size) {
            Settings& group = job.answers.gudtSettings[pen.intSettings + size];
            const PenForm form = size == 0 ? PenForm::cutting : PenForm::drilling;
            group.blnComplete = isCompleteGroup(group, form, tools);
        }
    }
}

void UnfinishedFile::begin(const std::optional<Unfinished>& found) {
    *this = {};
    if (found) {
        m_file = found->file;
        m_kept = m_tried = found->bytes;
    }
}

void UnfinishedFile::settle(const Job& job, const ToolList& tools) {
    m_settled = answersText(job, tools);
}

void UnfinishedFile::keep(const Job& job, const ToolList& tools, const WizardPlace& place,
                          std::vector<std::string> boxes) {
    if (job.answers.gstrSavedFile.empty())
        return;
    std::string answers = answersText(job, tools);
    if (m_kept.empty() && answers == m_settled) {
        m_tried.clear();
        return;
    }
    std::string bytes = formatUnfinished({place, std::move(boxes), std::move(answers)});
    std::error_code unknown;
    if (!m_kept.empty() && !std::filesystem::exists(m_file, unknown))
        forgetBytes(); // another copy has removed it
    if (bytes == m_tried)
        return;
    m_tried = bytes;
    if (bytes == m_kept)
        return;
    m_file = fileOf(job);
    makeFolder(m_file.parent_path());
    saveWhole(m_file, bytes);
    m_kept = std::move(bytes);
}

std::string UnfinishedFile::forgetBytes() {
    m_tried.clear();
    return std::exchange(m_kept, {});
}

void UnfinishedFile::forget() {
    const std::string kept = forgetBytes();
    std::error_code error;
    if (kept.empty() || !std::filesystem::exists(m_file, error) ||
        readWholeFile(m_file, maxUnfinishedBytes) != kept)
        return;
    std::filesystem::remove(m_file, error);
    if (error)
        throw FileError(utf8FromPath(m_file), "the file cannot be removed: " + error.message());
}

} // namespace torvik
