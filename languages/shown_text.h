// SPDX-License-Identifier: MIT
// Texts of rooms that know no translation, in the language of the program: names of colours,
// sentences of findings, times. All are UTF-8; what has no translation stays as it is.
#pragma once

#include <QString>

#include <string_view>

namespace torvik {

QString shownText(std::string_view text);

// For a text that was made of a pattern with {1} to {4} for its values: the translation of the
// pattern, with the same values as they are shown.
QString shownFilled(std::string_view text, std::string_view pattern);

} // namespace torvik
