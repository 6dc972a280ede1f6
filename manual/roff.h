// SPDX-License-Identifier: MIT
// Plain text as the formatter of manual pages wants it.
#pragma once

#include <string>
#include <string_view>

namespace torvik {

// The text with what the formatter would take for itself made harmless: dashes and tildes stay
// what they are, and no line is a request.
std::string roffText(std::string_view text);

// The text in bold and in italic letters.
std::string roffBold(std::string_view text);
std::string roffItalic(std::string_view text);

} // namespace torvik
