// SPDX-License-Identifier: MIT
// The last step: what was written is read by the job's own reader and compared with the strokes.
#pragma once

#include "base/errors.h"
#include "prepare/strokes.h"

#include <span>
#include <string>

namespace torvik {

// What was written would not be read as it was meant.
class Misread : public RunTimeError {
public:
    using RunTimeError::RunTimeError;
};

// Raises RunTimeError where there are more elements than a job takes.
void requireFewEnough(std::span<const Stroke> strokes);

// Raises RunTimeError where there are too many elements, and Misread where any element's pen, kind
// or place differs from the strokes by more than the tolerance in mm.
void checkWritten(const std::string& text, std::span<const Stroke> strokes, double tolerance);

} // namespace torvik
