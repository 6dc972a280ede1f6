// SPDX-License-Identifier: MIT
#include "prepare/source/hpgl_source.h"

#include "base/errors.h"
#include "job/hpgl_reader.h"
#include "prepare/source/instruction_table.h"

#include <map>
#include <numeric>
#include <string>

namespace torvik {
namespace {

void readParameters(Scanner& scanner, Shape shape, char textTerminator, Parameters& parameters) {
    parameters.numbers.clear();
    parameters.text = {};
    switch (shape) {
    case Shape::numbers:
        scanner.readNumbers(parameters.numbers);
        break;
    case Shape::text:
        parameters.text = scanner.readText(textTerminator);
        break;
    case Shape::character:
        parameters.text = scanner.readCharacter(parameters.numbers);
        break;
    case Shape::comment:
        parameters.text = scanner.readComment();
        break;
    case Shape::encoded:
        parameters.text = scanner.readEncoded();
        break;
    }
}

void readInto(SourceDrawing& drawing, Scanner& scanner, const SourceOptions& options,
              bool isPlain) {
    PenPlotter plotter(drawing.strokes, drawing.report, options, isPlain);
    std::vector<long> counts(instructionTable().size());
    Parameters parameters;
    for (Mnemonic mnemonic{}; scanner.nextMnemonic(mnemonic);) {
        const Instruction* const row = findInstruction(mnemonic);
        if (row == nullptr) {
            ++drawing.report.unknown[std::string(mnemonic.begin(), mnemonic.end())];
            scanner.readNumbers(parameters.numbers);
            continue;
        }
        ++counts[static_cast<std::size_t>(row - instructionTable().data())];
        readParameters(scanner, row->shape, plotter.textTerminator(), parameters);
        (plotter.*row->perform)(parameters);
    }
    plotter.finish();
    for (std::size_t i = 0; i < counts.size(); ++i)
        if (counts[i] > 0)
            drawing.report.instructions[std::string(instructionTable()[i].mnemonic)] = counts[i];
    drawing.report.strayCharacters += scanner.strayCharacters();
}

// Texts and bytes of other kinds hold pairs of letters, too, some of which mean something by
// chance.
void requireDrawing(const SourceReport& report, std::string_view fileName) {
    constexpr long fewUnknown = 10;
    const auto sum = [](const std::map<std::string, long>& counts) {
        return std::accumulate(counts.begin(), counts.end(), 0L,
                               [](long total, const auto& one) { return total + one.second; });
    };
    const long unknown = sum(report.unknown);
    const long all = unknown + sum(report.instructions);
    if (unknown > fewUnknown && unknown > all / 2)
        throw FileError(std::string(fileName),
                        "this is no drawing in HPGL: " + std::to_string(unknown) + " of its " +
                            std::to_string(all) + " instructions are unknown");
}

} // namespace

SourceDrawing readHpgl(std::string_view bytes, std::string_view fileName,
                       const SourceOptions& options) {
    requireSingleBytes(bytes, std::string(fileName));
    SourceDrawing drawing;
    Scanner scanner(bytes);
    try {
        readInto(drawing, scanner, options, isPlainDrawing(std::string(bytes)));
    } catch (const RunTimeError& error) {
        throw FileError(std::string(fileName), error.what(), scanner.line());
    }
    requireDrawing(drawing.report, fileName);
    return drawing;
}

} // namespace torvik
