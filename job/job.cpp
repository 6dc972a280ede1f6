// SPDX-License-Identifier: MIT
#include "job/job.h"

namespace torvik {

void ClearData(Job& job) {
    job.gsngToolChangeHeight = 50;
    job.gsngSafeHeight = 0;
    job.gsngRapidDownTo = 2;
    job.gsngFeedFactor = 0;
    job.gstrFeedUnits.clear();
    job.gintLineNumber = 0;
    job.gudtPaths.erase();
    job.gintPathCount = 0;
    job.gintPathOrder.erase();
    job.gudtPens.fill({});
    job.gintPenCount = 0;
    job.gudtSettings.erase();
    job.gintSettingsCount = 0;
    job.gudtColourTree.clear();
    job.gintCurrentPen = 0;
    job.gintLastPen = 0;
    job.gintCurrentRadius = 0;
    job.gintCurrentSettings = 0;
    job.gintOrder.fill(0);
    job.gintOrderCount = 0;
    job.gblnOrderSet = false;
    job.gstrHeader.fill({});
    job.gstrDigest.clear();
    job.gstrSavedFile.clear();
    job.gblnSavedFound = false;
}

} // namespace torvik
