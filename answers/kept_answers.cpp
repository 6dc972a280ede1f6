// SPDX-License-Identifier: MIT
#include "answers/kept_answers.h"

#include <utility>

namespace torvik {

bool KeptAnswers::giveBack(Job& job) {
    auto kept = std::exchange(m_answers, std::nullopt);
    const Identity opened{job.drawing.gstrPlotFile, job.drawing.gstrDigest};
    if (!kept || opened.digest.empty() || m_drawing != opened ||
        kept->gintSettingsCount != job.answers.gintSettingsCount)
        return false;
    kept->gstrSavedFile = job.answers.gstrSavedFile;
    kept->gblnSavedFound = job.answers.gblnSavedFound;
    job.answers = std::move(*kept);
    return true;
}

} // namespace torvik
