// SPDX-License-Identifier: MIT
// The parts of scripts/proof that know programs.
// usage: proof list PATH...                 names the programs in folders
//        proof moves PROGRAM                 prints what the check's machine does: LINE KIND
//        NUMBERS proof random FOLDER JOBS SEED       writes so many jobs by chance for each control
#include "base/errors.h"
#include "base/files.h"
#include "check/command/program_files.h"
#include "check/opening_lines.h"
#include "check/program_reader.h"
#include "tests/mutants/written_job.h"

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>

namespace torvik {
namespace {

namespace fs = std::filesystem;
using check::MoveKind;

std::string shown(double value) {
    std::ostringstream text;
    text.precision(10);
    if (std::isnan(value))
        return " ?";
    text << ' ' << value;
    return text.str();
}

std::string shown(const check::Place& place) {
    return shown(place.x) + shown(place.y) + shown(place.z);
}

std::string nameOf(const check::Move& move) {
    switch (move.kind) {
    case MoveKind::dwell:
        return "dwell";
    case MoveKind::tool:
        return "tool";
    case MoveKind::spindleOn:
        return "speed";
    case MoveKind::spindleOff:
        return "off";
    case MoveKind::programEnd:
        return "end";
    case MoveKind::cutClockwise:
        return "cw";
    case MoveKind::cutCounterClockwise:
        return "ccw";
    default:
        return move.isRapid() ? "rapid" : move.isFed() ? "line" : "";
    }
}

std::string stepOf(const check::Move& move, const check::Target& target) {
    std::string text = nameOf(move);
    if (move.isRapid() || move.isFed())
        text += shown(move.to);
    if (move.isFed())
        text += shown(move.feed / target.feedFactor);
    if (move.isArc())
        text += shown(move.centre.x) + shown(move.centre.y);
    return std::isnan(move.value) ? text : text + shown(move.value);
}

// The stop of the spindle comes before the move that stands with it in one statement.
void printMoves(const fs::path& path) {
    const std::string text = check::readProgramFile(path).program;
    const check::Target* target = check::recogniseTarget(text);
    if (target == nullptr)
        throw FileError(utf8FromPath(path), "this is a program of no control");
    check::Findings ignored;
    check::Moves moves = check::readProgram(*target, text, ignored).moves;
    for (std::size_t i = 1; i < moves.size(); ++i)
        if (moves[i].kind == MoveKind::spindleOff)
            std::swap(moves[i - 1], moves[i]);
    for (const check::Move& move : moves)
        if (const std::string step = stepOf(move, *target); !step.empty())
            std::cout << move.line << ' ' << step << '\n';
}

void writeRandomJobs(const fs::path& folder, int jobs, int firstSeed) {
    for (int seed = firstSeed; seed < firstSeed + jobs; ++seed)
        for (const Dialect& control : dialects()) {
            const WrittenJob written(static_cast<unsigned>(seed), control);
            const fs::path path =
                folder / ("random-" + std::to_string(seed) + "." + std::string(control.optionName));
            std::ofstream file(path, std::ios::binary);
            if (!(file << written.program).flush())
                throw FileError(utf8FromPath(path), "it cannot be written");
        }
}

int run(const std::vector<std::string>& arguments) {
    const std::string action = arguments.empty() ? "" : arguments[0];
    if (action == "list")
        for (std::size_t i = 1; i < arguments.size(); ++i)
            for (const fs::path& path : check::programsOf(arguments[i]))
                std::cout << path.string() << '\n';
    else if (action == "moves" && arguments.size() == 2)
        printMoves(arguments[1]);
    else if (action == "random" && arguments.size() == 4)
        writeRandomJobs(arguments[1], std::atoi(arguments[2].c_str()),
                        std::atoi(arguments[3].c_str()));
    else
        return 2;
    return 0;
}

} // namespace
} // namespace torvik

int main(int argc, char** argv) {
    try {
        return torvik::run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << "proof: " << error.what() << '\n';
        return 1;
    }
}
