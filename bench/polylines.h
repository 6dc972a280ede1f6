// SPDX-License-Identifier: MIT
// Drawings as other programs write them: circles, slots and straight edges as chords, many pairs in
// one instruction.
#pragma once

#include <cstddef>
#include <string>

namespace torvik {

// About the given count of bytes; 5 MB take a fifth of the elements of a job when they are
// prepared.
std::string polylineDrawing(std::size_t bytes);

// Strokes of a line each, all over a sheet.
std::string scatteredDrawing(long strokes);

} // namespace torvik
