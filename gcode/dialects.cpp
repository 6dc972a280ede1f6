// SPDX-License-Identifier: MIT
#include "gcode/dialects.h"

#include "base/errors.h"
#include "base/numbers.h"
#include "base/picture.h"
#include "tools/tool_list.h"

#include <algorithm>
#include <array>

namespace torvik {
namespace {

constexpr bool unnumbered = false;

constexpr std::array<Statement, 3> zeroPoint{{{"G54"}, {"G97 G94"}, {"G58 X0 Y0 Z0"}}};
constexpr std::array<Statement, 1> percent{{{"%", unnumbered}}};
constexpr std::array<Statement, 2> unloadWithLengthOffset{{{"G49"}, {"M0"}}};
constexpr std::array<Statement, 1> toolWithLengthOffset{{{"T{tool} G43 H{tool}"}}};
constexpr std::array<Statement, 4> endWithLengthOffset{
    {{"G0 Z{toolChange} M5"}, {"G49"}, {"M30"}, {"%", unnumbered}}};

constexpr std::array<Statement, 1> winCamOpening{{{"%MPF{number}", unnumbered}}};
constexpr std::array<Statement, 2> winCamTool{{{"M1"}, {"T{tool} D{offset} M0"}}};
constexpr std::array<Statement, 2> winCamEnd{{{"G0 Z{toolChange} M5"}, {"M30"}}};

constexpr std::array<Statement, 3> winNcOpening{
    {{"\x1B&HE:\x12%", unnumbered}, {":{number4}", unnumbered}, {"G54"}}};

constexpr std::array<Statement, 1> maskorTool{{{"T{tool}"}}};
constexpr std::array<Statement, 2> maskorEnd{{{"G0 Z{toolChange}"}, {"%", unnumbered}}};

constexpr std::string_view retractAndStop = "G0 Z{toolChange} M5";

constexpr std::array<Dialect, 4> table{{
    {
        .code = targetWinCam,
        .name = "WinCAM",
        .optionName = "wincam",
        .feedDivisor = 1,
        .feedDecimals = 0,
        .dwellFactor = 1,
        .dwellDecimals = 2,
        .opening = winCamOpening,
        .openingAfterHeader = zeroPoint,
        .commentOpener = {},
        .commentCloser = {},
        .retract = retractAndStop,
        .toolUnload = {},
        .tool = winCamTool,
        .spindle = "M3 S{speed}",
        .dwell = "G4 X{dwell}",
        .end = winCamEnd,
        .diskettePrefix = "%MPF",
        .extension = {},
        .saveTitle = {},
        .saveKind = {},
        .folderSetting = {},
    },
    {
        .code = targetWinNc,
        .name = "WinNC",
        .optionName = "winnc",
        .feedDivisor = 1,
        .feedDecimals = 0,
        .dwellFactor = 1,
        .dwellDecimals = 2,
        .opening = winNcOpening,
        .openingAfterHeader = {},
        .commentOpener = {},
        .commentCloser = {},
        .retract = retractAndStop,
        .toolUnload = unloadWithLengthOffset,
        .tool = toolWithLengthOffset,
        .spindle = "S{speed} M3",
        .dwell = "G4 X{dwell}",
        .end = endWithLengthOffset,
        .diskettePrefix = "oprg",
        .extension = {},
        .saveTitle = {},
        .saveKind = {},
        .folderSetting = {},
    },
    {
        .code = targetMaskor,
        .name = "Maskor",
        .optionName = "maskor",
        .feedDivisor = 1,
        .feedDecimals = 0,
        .dwellFactor = 1,
        .dwellDecimals = 2,
        .opening = percent,
        .openingAfterHeader = {},
        .commentOpener = "*",
        .commentCloser = {},
        .retract = "G0 Z{toolChange}",
        .toolUnload = {},
        .tool = maskorTool,
        .spindle = "S{speed}",
        .dwell = "G4 P{dwell}",
        .end = maskorEnd,
        .diskettePrefix = {},
        .extension = "mxc",
        .saveTitle = "Select the destination Maskor file",
        .saveKind = "Maskor files",
        .folderSetting = "CNC File Path",
    },
    {
        .code = targetKestra,
        .name = "Kestra",
        .optionName = "kestra",
        .feedDivisor = 60, // mm/s
        .feedDecimals = 2,
        .dwellFactor = 1000, // ms
        .dwellDecimals = 0,
        .opening = percent,
        .openingAfterHeader = zeroPoint,
        .commentOpener = "(",
        .commentCloser = ")",
        .retract = retractAndStop,
        .toolUnload = unloadWithLengthOffset,
        .tool = toolWithLengthOffset,
        .spindle = "S{speed} M3",
        .dwell = "G4 P{dwell}",
        .end = endWithLengthOffset,
        .diskettePrefix = {},
        .extension = "iso",
        .saveTitle = "Select the destination Kestra file",
        .saveKind = "Kestra files",
        .folderSetting = "Kestra File Path",
        .isUsual = true,
    },
}};

constexpr Dialect noDialect{.code = 0,
                            .name = {},
                            .optionName = {},
                            .feedDivisor = 1,
                            .feedDecimals = 0,
                            .dwellFactor = 1,
                            .dwellDecimals = 2,
                            .opening = {},
                            .openingAfterHeader = {},
                            .commentOpener = {},
                            .commentCloser = {},
                            .retract = {},
                            .toolUnload = {},
                            .tool = {},
                            .spindle = {},
                            .dwell = {},
                            .end = {},
                            .diskettePrefix = {},
                            .extension = {},
                            .saveTitle = {},
                            .saveKind = {},
                            .folderSetting = {}};

std::span<const Dialect>& rows() {
    static std::span<const Dialect> inForce = table;
    return inForce;
}

std::int16_t toolNumber(const StatementValues& values) {
    return toolAt(*values.tools, values.toolPlace).intNumber;
}

std::int16_t offsetNumber(std::int16_t tool) {
    try {
        return toInt16(2.0 * tool - 1);
    } catch (const Overflow&) {
        throw Overflow("tool T" + formatInteger(tool) + " has no offset number D: 2 x " +
                       formatInteger(tool) + " - 1 is outside -32768 to 32767");
    }
}

std::string placeText(std::string_view place, const StatementValues& values) {
    if (place == "tool")
        return formatInteger(toolNumber(values));
    if (place == "offset")
        return formatInteger(offsetNumber(toolNumber(values)));
    if (place == "speed")
        return formatFixed(values.spindleSpeed, 0);
    if (place == "dwell")
        return formatFixed(values.dwell, values.dwellDecimals);
    if (place == "toolChange")
        return formatFixed(values.toolChangeHeight, 2);
    if (place == "number")
        return formatInteger(values.programNumber);
    if (place == "number4")
        return formatInteger(values.programNumber, 4);
    throw InvalidCall("a statement of the table has an unknown place {" + std::string(place) + "}");
}

} // namespace

std::span<const Dialect> dialects() {
    return rows();
}

OtherDialects::OtherDialects(std::span<const Dialect> others) : m_before(rows()) {
    rows() = others;
}

OtherDialects::~OtherDialects() {
    rows() = m_before;
}

const Dialect& dialectFor(std::int16_t code) {
    const auto row = std::find_if(rows().begin(), rows().end(),
                                  [code](const Dialect& dialect) { return dialect.code == code; });
    return row == rows().end() ? noDialect : *row;
}

void expand(std::string& out, std::string_view statement, const StatementValues& values) {
    while (!statement.empty()) {
        const auto open = std::min(statement.find('{'), statement.size());
        out += statement.substr(0, open);
        statement.remove_prefix(open);
        if (statement.empty())
            break;
        const auto close = statement.find('}');
        out += placeText(statement.substr(1, close - 1), values);
        statement.remove_prefix(close + 1);
    }
}

} // namespace torvik
