// SPDX-License-Identifier: MIT
// The text form of a drawing's answers: the drawing's digest, then lines of values separated by
// commas: texts in double quotes (a quote inside is doubled, line ends inside are kept), numbers
// in their shortest plain form, flags as #TRUE# and #FALSE#. Written with CR LF; lines that end at
// LF or CR alone are read too. UTF-8 as it stands, no Qt. Refuses, with the line, whatever is not
// this form or does not fit the drawing.
#pragma once

#include "job/records.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace torvik {

// Far more than the answers for a drawing with 32767 hole sizes take.
inline constexpr std::size_t maxSavedBytes = std::size_t{16} << 20;

// A settings group with the tool's own number in place of its place in the list.
struct SavedGroup {
    std::int16_t toolNumber = 0; // 0 = none chosen
    Settings settings;
};

struct SavedPen {
    std::int16_t number = 0; // 1 to 8
    bool blnDrill = false;
    bool blnCircles = false;
    bool blnOmit = false;
    SavedGroup own;
    std::vector<SavedGroup> holes; // one for each circle size, in order of radius
};

struct SavedAnswers {
    std::string digest; // one line
    std::array<std::string, 9> header;
    float sngToolChangeHeight = 0; // mm, as the other heights
    float sngSafeHeight = 0;
    float sngRapidDownTo = 0;
    float sngOrderCount = 0; // kept for other readers of the file, means nothing here
    float sngFeedFactor = 0; // 1 for mm/min, 60 for mm/sec, 0 for no choice
    std::vector<SavedPen> pens;
    std::array<std::int16_t, penCount> order{};
};

// The first line of the text.
std::string_view savedDigest(std::string_view text);

// The answers in the text of a file. `shape` holds the drawing's used pens with their circles flag
// and as many hole groups as the pen has circle sizes; the text must have just these. Raises
// FileError with the line; `fileName` is for the message.
SavedAnswers parseAnswers(std::string_view text, const SavedAnswers& shape,
                          std::string_view fileName);

// The text of the answers. Raises InvalidCall for what parseAnswers would refuse, and Overflow for
// a number that is not finite.
std::string formatAnswers(const SavedAnswers& answers);

} // namespace torvik
