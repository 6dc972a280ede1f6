// SPDX-License-Identifier: MIT
#include "check/targets.h"

#include <array>

namespace torvik::check {
namespace {

using Forms = StatementForm;

constexpr std::array<Forms, 6> common{{
    {"G1 X# Y# F#", Meaning::cutLine},
    {"G2 X# Y# I# J# F#", Meaning::cutClockwise},
    {"G3 X# Y# I# J# F#", Meaning::cutCounterClockwise},
    {"G0 Z#", Meaning::rapidHeight},
    {"G0 X# Y#", Meaning::rapidAcross},
    {"G1 Z# F#", Meaning::feedHeight},
}};

constexpr std::array<Forms, 9> winCamForms{{
    {"G0 Z# M5", Meaning::retract},
    {"G4 X#", Meaning::dwell},
    {"M1", Meaning::pause},
    {"T# D# M0", Meaning::tool},
    {"M3 S#", Meaning::spindleOn},
    {"M30", Meaning::programEnd},
    {"G54", Meaning::coordinates},
    {"G97 G94", Meaning::feedMode},
    {"G58 X0 Y0 Z0", Meaning::zeroShift},
}};
constexpr std::array<Forms, 3> maskorForms{{
    {"G4 P#", Meaning::dwell},
    {"T#", Meaning::tool},
    {"S#", Meaning::spindleOn},
}};
// Those of Kestra and WinNC, the own ones of each at one end.
constexpr std::array<Forms, 11> hControlForms{{
    {"G97 G94", Meaning::feedMode},
    {"G58 X0 Y0 Z0", Meaning::zeroShift},
    {"G4 P#", Meaning::dwell},
    {"G0 Z# M5", Meaning::retract},
    {"G49", Meaning::unload},
    {"M0", Meaning::stop},
    {"T# G43 H#", Meaning::tool},
    {"S# M3", Meaning::spindleOn},
    {"M30", Meaning::programEnd},
    {"G54", Meaning::coordinates},
    {"G4 X#", Meaning::dwell},
}};
constexpr auto kestraForms = std::span(hControlForms).first<10>();
constexpr auto winNcForms = std::span(hControlForms).last<8>();

constexpr std::array<std::string_view, 1> winCamOpening{"%MPF#"};
constexpr std::array<std::string_view, 2> winNcOpening{"\x1B&HE:\x12%", ":####"};
constexpr std::array<std::string_view, 1> percentOpening{"%"};

constexpr std::array zeroPoint{Meaning::coordinates, Meaning::feedMode, Meaning::zeroShift};
constexpr std::array coordinatesOnly{Meaning::coordinates};
constexpr std::array pauseOnly{Meaning::pause};
constexpr std::array unloadAndStop{Meaning::unload, Meaning::stop};
constexpr std::array endOnly{Meaning::programEnd};
constexpr std::array unloadAndEnd{Meaning::unload, Meaning::programEnd, Meaning::percent};
constexpr std::array percentOnly{Meaning::percent};

constexpr int sameAsTool(int tool) {
    return tool;
}
constexpr int twoForEachTool(int tool) {
    return 2 * tool - 1;
}

constexpr std::array<Target, 4> targetRows{{
    {
        .name = "WinCAM",
        .optionName = "wincam",
        .fileStart = "%MPF",
        .fileEnd = {},
        .openingLines = winCamOpening,
        .commentOpener = 0,
        .commentCloser = 0,
        .opening = zeroPoint,
        .forms = winCamForms,
        .beforeFirstTool = pauseOnly,
        .beforeTool = pauseOnly,
        .ending = endOnly,
        .offsetOf = twoForEachTool,
        .offsetLetter = 'D',
        .feedDecimals = 0,
        .feedFactor = 1,
        .dwellDecimals = 2,
        .dwellFactor = 1,
        .stopsSpindle = true,
        .pace = {.rapid = 2000,
                 .rapidZ = 1500,
                 .acceleration = 150,
                 .toolChange = 60,
                 .spindleStart = 3,
                 .feedCap = 2000},
    },
    {
        .name = "WinNC",
        .optionName = "winnc",
        .fileStart = "oprg",
        .fileEnd = {},
        .openingLines = winNcOpening,
        .commentOpener = 0,
        .commentCloser = 0,
        .opening = coordinatesOnly,
        .forms = winNcForms,
        .beforeFirstTool = {},
        .beforeTool = unloadAndStop,
        .ending = unloadAndEnd,
        .offsetOf = sameAsTool,
        .offsetLetter = 'H',
        .feedDecimals = 0,
        .feedFactor = 1,
        .dwellDecimals = 2,
        .dwellFactor = 1,
        .stopsSpindle = true,
        .pace = {.rapid = 3000,
                 .rapidZ = 2000,
                 .acceleration = 250,
                 .toolChange = 60,
                 .spindleStart = 3,
                 .feedCap = 2000},
    },
    {
        .name = "Maskor",
        .optionName = "maskor",
        .fileStart = {},
        .fileEnd = ".mxc",
        .openingLines = percentOpening,
        .commentOpener = '*',
        .commentCloser = 0,
        .opening = {},
        .forms = maskorForms,
        .beforeFirstTool = {},
        .beforeTool = {},
        .ending = percentOnly,
        .offsetOf = nullptr,
        .offsetLetter = 0,
        .feedDecimals = 0,
        .feedFactor = 1,
        .dwellDecimals = 2,
        .dwellFactor = 1,
        .stopsSpindle = false,
        .pace = {.rapid = 1800,
                 .rapidZ = 1200,
                 .acceleration = 100,
                 .toolChange = 90,
                 .spindleStart = 4,
                 .feedCap = 1800},
    },
    {
        .name = "Kestra",
        .optionName = "kestra",
        .fileStart = {},
        .fileEnd = ".iso",
        .openingLines = percentOpening,
        .commentOpener = '(',
        .commentCloser = ')',
        .opening = zeroPoint,
        .forms = kestraForms,
        .beforeFirstTool = {},
        .beforeTool = unloadAndStop,
        .ending = unloadAndEnd,
        .offsetOf = sameAsTool,
        .offsetLetter = 'H',
        .feedDecimals = 2,
        .feedFactor = 60, // written in mm/s
        .dwellDecimals = 0,
        .dwellFactor = 0.001, // written in ms
        .stopsSpindle = true,
        .pace = {.rapid = 3600,
                 .rapidZ = 1800,
                 .acceleration = 300,
                 .toolChange = 60,
                 .spindleStart = 4,
                 .feedCap = 3600},
    },
}};

} // namespace

std::span<const Target> targets() {
    return targetRows;
}

const Target* findTarget(std::string_view optionName) {
    for (const Target& target : targets())
        if (target.optionName == optionName)
            return &target;
    return nullptr;
}

std::span<const StatementForm> commonForms() {
    return common;
}

std::string_view patternOf(const Target& target, Meaning meaning) {
    if (meaning == Meaning::percent)
        return "%";
    for (const auto& forms : {commonForms(), target.forms})
        for (const StatementForm& form : forms)
            if (form.meaning == meaning)
                return form.pattern;
    return {};
}

} // namespace torvik::check
