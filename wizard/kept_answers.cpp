// SPDX-License-Identifier: MIT
#include "wizard/kept_answers.h"

#include <utility>

namespace torvik {

void KeptAnswers::giveBack(Job& job) {
    const auto kept = std::exchange(m_job, std::nullopt);
    if (!kept || kept->gstrPlotFile != job.gstrPlotFile || kept->gstrDigest.empty() ||
        kept->gstrDigest != job.gstrDigest || kept->gintSettingsCount != job.gintSettingsCount)
        return;
    job.gudtSettings = kept->gudtSettings;
    for (std::int16_t pen = 1; pen <= penCount; ++pen) {
        job.gudtPens[pen].blnOmit = kept->gudtPens[pen].blnOmit;
        job.gudtPens[pen].blnDrill = kept->gudtPens[pen].blnDrill;
    }
    job.gintOrder = kept->gintOrder;
    job.gintOrderCount = kept->gintOrderCount;
    job.gblnOrderSet = kept->gblnOrderSet;
    job.gsngToolChangeHeight = kept->gsngToolChangeHeight;
    job.gsngSafeHeight = kept->gsngSafeHeight;
    job.gsngRapidDownTo = kept->gsngRapidDownTo;
    job.gsngFeedFactor = kept->gsngFeedFactor;
    job.gstrFeedUnits = kept->gstrFeedUnits;
    job.gstrHeader = kept->gstrHeader;
}

} // namespace torvik
