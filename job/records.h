// SPDX-License-Identifier: MIT
// The records of a job: a drawn element, a pen of the plotter, a group of machining settings.
// Lengths are millimetres and angles radians from 0 to 2 pi, all in single precision; feeds are
// mm/min.
#pragma once

#include "base/arrays.h"

#include <cstdint>
#include <string>

namespace torvik {

// Values of Path::intType.
inline constexpr std::int16_t straightLine = 1;
inline constexpr std::int16_t arcCounterClockwise = 2;
inline constexpr std::int16_t arcClockwise = 3;

inline constexpr std::int16_t penCount = 8;

// One drawn element.
struct Path {
    std::int16_t intType = 0;
    std::int16_t intPen = 0;
    float sngStartX = 0;
    float sngStartY = 0;
    float sngEndX = 0;
    float sngEndY = 0;
    float sngCentreX = 0; // 0 for lines, as the angles and the radius are
    float sngCentreY = 0;
    float sngAngleFrom = 0; // the arc runs counter-clockwise from here ...
    float sngAngleTo = 0;   // ... to here, whichever way it was drawn
    float sngRadius = 0;
};

// One pen of the plotter, and what the user decided for it.
struct Pen {
    std::int32_t lngColour = 0; // 0x00BBGGRR
    std::string strColour;
    bool blnUsed = false;          // an element is drawn with this pen
    bool blnCircles = false;       // all its elements are closed circles
    bool blnOmit = false;          // not machined at all
    bool blnDrill = false;         // its circles are drilled as holes
    OneBasedArray<float> sngRadii; // its distinct circle sizes, ascending
    std::int16_t intRadiusCount = 0;
    std::int16_t intSettings = 0; // its own settings group; one for each circle size follows
};

// One group of machining settings: of a pen that is cut, or of one hole size that is drilled.
struct Settings {
    std::int16_t intTool = 0;     // place in the tool list, 0 = none chosen
    float sngSpindleSpeed = 0;    // rpm
    float sngFeedHorizontal = 0;  // cutting only
    float sngFeedFinalPass = 0;   // cutting only
    float sngFeedVertical = 0;    // drilling: the drilling feed
    float sngDepth = 0;           // final depth, or depth of hole
    float sngDepthPerPass = 0;    // drilling: the peck distance
    float sngFinalPassDepth = 0;  // cutting only
    float sngDwell = 0;           // drilling only, seconds
    bool blnPeck = false;         // drilling only
    bool blnComplete = false;     // entered and accepted
    std::int16_t intToolGone = 0; // number of the tool it had, where that is in the list no more
};

} // namespace torvik
