// SPDX-License-Identifier: MIT
// Reads a drawing in HPGL: the instructions SP, PU, PD, AA and CI of plain line work, one pair of
// coordinates each, in plotter units of 1/40 mm. Whatever else stands in the file is skipped.
// A drawing that cannot be read to its end is refused as a whole.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace torvik {

struct Drawing;
struct Job;
class Logger;

// More than this is no drawing of ours: 32767 elements take a hundredth of it.
inline constexpr std::size_t maxDrawingBytes = std::size_t{256} << 20;
inline constexpr double plotterUnitsPerMm = 40.0;

// Clears the job and reads the file, once, into gudtPaths; gstrPlotFile becomes the name as given.
// `seen` gets the bytes of the file before they are read. True when the drawing was read;
// gblnUnsaved is then set. A file that cannot be read, a number that does not fit, more than 32767
// elements, or a pen outside 1 to 8 that draws is logged and reported with file, line and cause;
// the job is then empty.
bool blnGetCommands(Job& job, const std::filesystem::path& file, Logger& logger,
                    const std::function<void(std::string_view bytes)>& seen = {});

// The same from the bytes of a file; raises FileError and leaves the drawing as far as it got.
// `fileName` is for the messages.
void readInstructions(Drawing& drawing, std::string bytes, std::string_view fileName,
                      Logger& logger);

// Some editors write two bytes for each letter, in which nothing can be read. Raises FileError.
void requireSingleBytes(std::string_view bytes, const std::string& fileName);

// Whether a file of these bytes holds nothing but the five instructions, as they are to be written,
// and IN. In such a drawing an arc is drawn with the pen up, too.
bool isPlainDrawing(std::string bytes);

} // namespace torvik
