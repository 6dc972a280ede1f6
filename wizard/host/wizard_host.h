// SPDX-License-Identifier: MIT
// What the wizard's pages ask of the main window. The pages know nothing else of it.
#pragma once

#include <cstdint>
#include <vector>

namespace torvik {

class WizardHost {
public:
    WizardHost() = default;
    WizardHost(const WizardHost&) = delete;
    WizardHost& operator=(const WizardHost&) = delete;
    virtual ~WizardHost() = default;

    // cmdNext.
    virtual void setNextEnabled(bool enabled) = 0;
    virtual void focusNext() = 0;
    // Brings tvwColours in line with the job's gudtColourTree (pictures, bold, expanded).
    virtual void updateTree() = 0;

    // Shows the line preview with every machined pen.
    virtual void PlotLines() = 0;
    virtual void clearPreview() = 0;
    // One frame of the blinking: the line preview in which the given paths (subscripts of
    // gudtPaths, ascending) are drawn only if `visible`.
    virtual void plotBlink(const std::vector<std::int16_t>& paths, bool visible) = 0;
    // tmrFlash: the next blink step comes after the interval. stopFlashing leaves the preview to
    // the caller.
    virtual void startFlashing(int milliseconds) = 0;
    virtual void stopFlashing() = 0;

    // tmrToolSelect: opens the tool selection when the running event has ended.
    virtual void startToolSelection() = 0;

    // Where the pen pages end: before the first pen (step 2, the global page filled by
    // RestoreGlobals) and behind the last (step 4, ShowOrder).
    virtual void leavePensBackward() = 0;
    virtual void leavePensForward() = 0;
};

} // namespace torvik
