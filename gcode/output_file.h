// SPDX-License-Identifier: MIT
// The written program: opening lines, header and body in one file, and the text file beside a
// program that goes to the diskette.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace torvik {

struct Dialect;
struct Job;
struct ToolList;
class ByteSink;
class Logger;
class ProgramOutput;
class WholeFile;

// Hears how many lines are written, now and then; false ends the writing.
using WriteProgress = std::function<bool(std::int64_t lines)>;

enum class WriteOutcome {
    written,
    cancelled, // by the progress; nothing of it is left
    notOpened, // the program's file cannot be opened for writing; logged only
    failed,    // logged and reported; no file has changed
};

// Writes the program for the target code to the file, replacing any of that name, and the text
// file beside it where the target has one: both or none. `number` is the program number of the
// targets that have one, 1 to 32767.
WriteOutcome WriteFile(const Job& job, const ToolList& tools, std::int16_t target,
                       std::int16_t number, const std::filesystem::path& file, Logger& logger,
                       const WriteProgress& progress = {});

// The program alone, into any sink. False after a trapped error that ended the body; an error in
// the header (more than sixteen tools) is reported and passed over, a failed write excepted.
bool writeProgram(const Job& job, const ToolList& tools, const Dialect& dialect,
                  std::int16_t number, ByteSink& sink, Logger& logger);

// What stands before the body: the opening lines and the header.
void writeTop(const Job& job, const ToolList& tools, const Dialect& dialect, std::int16_t number,
              ProgramOutput& output, Logger& logger);

// The text beside a program: where the drawing is, the program's name without its folder, and the
// header. Raises FileError where the sink does; False where that was reported already, in the
// header.
bool writeSideText(const Job& job, const ToolList& tools, std::string_view fileName, ByteSink& sink,
                   Logger& logger);

// Gives a program that is written to its end, and the text beside it where the target has one,
// their names: both or none. `file` is the program's name. False where the text's header failed and
// that was reported. Raises FileError.
bool storeProgram(const Job& job, const ToolList& tools, const Dialect& dialect,
                  const std::filesystem::path& file, WholeFile& program, Logger& logger);

// The program's name with ".txt" behind it.
std::filesystem::path sideTextPath(const std::filesystem::path& program);

// What a program is stored in: its own file, and that of the text where its target has one.
std::vector<std::filesystem::path> filesOf(const Dialect& dialect,
                                           const std::filesystem::path& program);

// The name that the target proposes for a drawing: its diskette name with the number, or the
// drawing's name, without folder, with its last three characters replaced.
std::string proposedFileName(const Dialect& dialect, std::string_view plotFile,
                             std::int16_t number);

} // namespace torvik
