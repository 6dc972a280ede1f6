// SPDX-License-Identifier: MIT
// Answers given for a drawing that was left before anything was written: they come back when the
// same unchanged drawing is the next one opened.
#pragma once

#include "job/job.h"

#include <optional>

namespace torvik {

class KeptAnswers {
public:
    // Keeps the job's answers, complete or not.
    void keep(const Job& job) {
        m_drawing = {job.drawing.gstrPlotFile, job.drawing.gstrDigest};
        m_answers = job.answers;
    }
    // Puts them into a job just imported, if it is the same drawing; True where it is. Whatever
    // drawing it is, they are then forgotten.
    bool giveBack(Job& job);

private:
    // By name and content.
    struct Identity {
        std::string file;
        std::string digest;
        bool operator==(const Identity&) const = default;
    };

    Identity m_drawing;
    std::optional<Answers> m_answers;
};

} // namespace torvik
