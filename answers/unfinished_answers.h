// SPDX-License-Identifier: MIT
// The answers of a drawing for which no program was written yet, kept beside the saved answers as
// NAME.plx.unfinished, so that they survive whatever ends the program. Bound to the drawing's
// content, as the saved answers are.
#pragma once

#include "answers/unfinished_text.h"

#include <filesystem>
#include <optional>

namespace torvik {

struct Job;
struct ToolList;

// What was found for a drawing.
struct Unfinished {
    std::filesystem::path file;
    std::string bytes; // of the file
    WizardPlace place;
    std::vector<std::string> boxes;
    SavedAnswers answers;
};

// What is kept for the drawing that was just imported; none where there is no such file or it
// belongs to another drawing. Raises FileError for a file that cannot be read or understood.
std::optional<Unfinished> findUnfinished(const Job& job);

// Puts the answers into the job, complete or not.
void takeUnfinished(Job& job, SavedAnswers answers, const ToolList& tools);

// The file of the drawing that is open.
class UnfinishedFile {
public:
    // A drawing was opened. `found` is its file from an earlier run, where it goes on there.
    void begin(const std::optional<Unfinished>& found = {});
    // The job's answers as they are need no file: nothing was answered since they were saved.
    void settle(const Job& job, const ToolList& tools);
    // Keeps the answers, the place and the boxes of its page where they are other than before, or
    // where another copy of the program has removed the file. All or nothing. Raises FileError; the
    // same text is then not tried again.
    void keep(const Job& job, const ToolList& tools, const WizardPlace& place,
              std::vector<std::string> boxes);
    // The file goes, unless another copy of the program has written it since. Raises FileError.
    void forget();
    // Whether what was last to be kept is not what the file holds.
    bool isUnkept() const { return m_tried != m_kept; }

private:
    std::string forgetBytes(); // those that were kept

    std::filesystem::path m_file;
    std::string m_settled; // text of answers
    std::string m_kept;    // bytes of the file, empty: none
    std::string m_tried;   // bytes of the last attempt
};

} // namespace torvik
