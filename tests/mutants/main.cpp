// SPDX-License-Identifier: MIT
// Puts faults into good programs and prints how many of them the check finds: laid beside the job,
// and from the text alone. Programs in which the machine does the same as before are left out.
// usage: mutants [PROGRAMS OF A KIND [FIRST SEED]]
#include "base/byte_sink.h"
#include "base/logger.h"
#include "check/machine.h"
#include "check/plan/plan.h"
#include "check/program_reader.h"
#include "commands/target_names.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "tests/check/random_job.h"
#include "tests/mutants/faults.h"

#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <sstream>

namespace torvik {
namespace {

struct GoodProgram {
    GoodProgram(unsigned seed, const Dialect& control) : made(seed), dialect(control) {
        StringSink text;
        writeProgram(made.job, made.tools, dialect, 1, text, m_muted);
        std::istringstream stream(text.bytes());
        for (std::string line; std::getline(stream, line);) {
            line.pop_back();
            const bool isTop = lines.empty() && line[0] != 'N';
            (isTop ? top : lines)
                .push_back(line[0] == 'N' ? line.substr(line.find(' ') + 1) : line);
        }
        if (dialect.needsNumber()) {
            StringSink beside;
            writeSideText(made.job, made.tools, "1", beside, m_muted);
            sideText = beside.bytes();
        }
    }

    // With the lines numbered anew, so that the numbers tell nothing.
    std::string text(const Lines& changed) const {
        std::string all;
        for (const std::string& line : top)
            all += line + "\r\n";
        int number = 0;
        for (const std::string& line : changed)
            all += (line == "%" ? "" : "N" + std::to_string(number = number % 9999 + 1) + " ") +
                   line + "\r\n";
        return all;
    }

    const check::Target& target() const {
        return targetNamed(check::targets(), std::string(dialect.optionName));
    }
    check::Report besideJob(const std::string& text) const {
        return check::checkProgramOfJob(text, sideText, made.job, made.tools, &target());
    }

    RandomJob made;
    const Dialect& dialect;
    Lines top;
    Lines lines;
    std::string sideText;

private:
    Logger m_muted;
};

// What the machine does, in numbers.
std::vector<std::array<double, 10>> walked(const std::string& text, const check::Target& target) {
    std::vector<std::array<double, 10>> steps;
    check::Findings ignored;
    const auto known = [](double value) { return std::isnan(value) ? -1e9 : value; };
    for (const check::Move& move : check::walk(check::readProgram(target, text, ignored))) {
        const bool isStill = (move.isRapid() || move.kind == check::MoveKind::feedHeight) &&
                             move.from.x == move.to.x && move.from.y == move.to.y &&
                             move.from.z == move.to.z;
        if (!isStill)
            steps.push_back({double(move.kind), known(move.from.z), known(move.to.x),
                             known(move.to.y), known(move.to.z), known(move.centre.x),
                             known(move.centre.y), known(move.feed), known(move.value),
                             known(move.offset)});
    }
    return steps;
}

struct Score {
    int made = 0;
    int withPlan = 0;
    int fromText = 0;
};

std::size_t looks(const check::Report& report) {
    std::size_t count = 0;
    for (const auto level : {check::Level::look, check::Level::wrong, check::Level::danger})
        count += report.findings.count(level);
    return count;
}

// A job with a pen that begins where a deeper one ended has no good program.
void tryFault(const Fault& fault, unsigned seed, Score& score) {
    const GoodProgram good(seed, dialects()[seed % dialects().size()]);
    Random random(seed);
    Lines changed = good.lines;
    const std::string before = good.text(good.lines);
    if (!good.besideJob(before).findings.isGood() || !fault.put(changed, random))
        return;
    const std::string after = good.text(changed);
    if (walked(before, good.target()) == walked(after, good.target()))
        return;
    const auto fromText = [&](const std::string& text) {
        return looks(check::checkProgram(text, good.sideText, &good.target()));
    };
    ++score.made;
    if (good.besideJob(after).findings.isGood())
        std::cerr << "missed: " << fault.name << ", seed " << seed << '\n';
    else
        ++score.withPlan;
    score.fromText += fromText(after) > fromText(before) ? 1 : 0;
}

// Whether nothing is found in good programs but what is true.
bool areGood(int jobs, unsigned firstSeed) {
    int joined = 0;
    int wrong = 0;
    for (unsigned seed = firstSeed; seed < firstSeed + static_cast<unsigned>(jobs); ++seed)
        for (const Dialect& control : dialects()) {
            const GoodProgram good(seed, control);
            for (const auto& finding : good.besideJob(good.text(good.lines)).findings.byLine()) {
                if (check::rowOf(finding.kind).level < check::Level::wrong)
                    continue;
                const bool isTrue = finding.kind == check::Kind::deeperThanAsked &&
                                    finding.values[3].find("begins where") != std::string::npos;
                ++(isTrue ? joined : wrong);
                if (!isTrue)
                    std::cerr << "false alarm: seed " << seed << ", " << control.name << ", line "
                              << finding.line << ": " << sentenceOf(finding) << '\n';
            }
        }
    std::cout << jobs << " jobs, for each control a program as it is written: " << wrong
              << " false alarms, " << joined
              << " true ones of a pen that begins where a deeper one ends\n\n";
    return wrong == 0;
}

int run(int wanted, unsigned firstSeed) {
    constexpr unsigned mostTries = 20;
    Score all;
    bool isWhole = areGood(10 * wanted, firstSeed);
    std::cout << "| fault | programs | beside the job | from the text |\n|---|--:|--:|--:|\n";
    const auto print = [](const char* name, const Score& score) {
        std::cout << "| " << name << " | " << score.made << " | " << score.withPlan << " | "
                  << score.fromText << " |" << std::endl;
    };
    for (const Fault& fault : faults()) {
        Score score;
        const unsigned last = firstSeed + mostTries * static_cast<unsigned>(wanted);
        for (unsigned seed = firstSeed; seed < last && score.made < wanted; ++seed)
            tryFault(fault, seed, score);
        print(fault.name, score);
        isWhole = isWhole && score.made == wanted && score.withPlan == score.made;
        all = {all.made + score.made, all.withPlan + score.withPlan, all.fromText + score.fromText};
    }
    print("all", all);
    return isWhole ? 0 : 1;
}

} // namespace
} // namespace torvik

int main(int argc, char** argv) {
    const int wanted = argc > 1 ? std::atoi(argv[1]) : 100;
    const int firstSeed = argc > 2 ? std::atoi(argv[2]) : 1;
    return torvik::run(wanted, static_cast<unsigned>(firstSeed));
}
