// SPDX-License-Identifier: MIT
// The one error trap: whoever must go on after a run-time error runs its work inside it.
#pragma once

#include "base/errors.h"
#include "base/logger.h"

#include <exception>
#include <string_view>
#include <utility>

namespace torvik {

// Where an error is said to have happened.
struct Location {
    std::string_view procedure;
    std::string_view module;
};

// Runs the work; an exception is logged and reported with the location, unless the user ended the
// work. True when the work ran to its end.
template <typename Work>
bool withErrorTrap(Logger& logger, Location at, Work&& work) {
    try {
        std::forward<Work>(work)();
        return true;
    } catch (const Cancelled&) {
        return false;
    } catch (const std::exception& error) {
        logger.reportError(at.procedure, at.module, causeOf(error), isUnreadable(error));
    }
    return false;
}

// The same for an error that the user need not see: it is logged only.
template <typename Work>
bool withQuietErrorTrap(Logger& logger, Location at, Work&& work) {
    try {
        std::forward<Work>(work)();
        return true;
    } catch (const std::exception& error) {
        logger.logError(at.procedure, at.module, causeOf(error));
    }
    return false;
}

} // namespace torvik
