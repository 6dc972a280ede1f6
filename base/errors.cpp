// SPDX-License-Identifier: MIT
#include "base/errors.h"

namespace torvik {

SubscriptOutOfRange::SubscriptOutOfRange(std::ptrdiff_t subscript, std::ptrdiff_t low,
                                         std::ptrdiff_t high)
    : RunTimeError("there is no entry number " + std::to_string(subscript) +
                   (high < low ? std::string(" (the list is empty)")
                               : " (the list runs from " + std::to_string(low) + " to " +
                                     std::to_string(high) + ")")) {}

FileError::FileError(const std::string& file, const std::string& cause, long line)
    : RunTimeError(file + (line > 0 ? ", line " + std::to_string(line) : std::string()) + ": " +
                   cause),
      m_cause(cause), m_line(line) {}

namespace {

template <typename Error>
bool is(const std::exception& error) {
    return dynamic_cast<const Error*>(&error) != nullptr;
}

} // namespace

std::string causeOf(const std::exception& error) {
    return is<std::bad_alloc>(error) ? "there is not enough memory" : error.what();
}

bool isUnreadable(const std::exception& error) {
    return is<UnreadableFile>(error) || is<std::bad_alloc>(error);
}

} // namespace torvik
