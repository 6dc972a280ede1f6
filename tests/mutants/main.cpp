// SPDX-License-Identifier: MIT
// Puts faults into good programs and prints how many of them the check finds: laid beside the job,
// and from the text alone. Programs in which the machine does the same as before are left out.
// usage: mutants [PROGRAMS OF A KIND [FIRST SEED]]
#include "base/byte_sink.h"
#include "base/logger.h"
#include "check/machine.h"
#include "check/plan/plan.h"
#include "check/program_reader.h"
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
    explicit GoodProgram(unsigned seed) : made(seed), dialect(dialects()[seed % 4]) {
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

std::size_t bad(const check::Report& report, bool looks) {
    const check::Findings& found = report.findings;
    return found.count(check::Level::danger) + found.count(check::Level::wrong) +
           (looks ? found.count(check::Level::look) : 0);
}

struct Score {
    int made = 0;
    int withPlan = 0;
    int fromText = 0;
};

// A finding more than the good program has is one that the fault makes.
void tryFault(const Fault& fault, unsigned seed, Score& score) {
    const GoodProgram good(seed);
    const check::Target& target = *check::targetNamed(good.dialect.optionName);
    Random random(seed);
    Lines changed = good.lines;
    const std::string before = good.text(good.lines);
    if (!fault.put(changed, random))
        return;
    const std::string after = good.text(changed);
    if (walked(before, target) == walked(after, target))
        return;
    const auto beside = [&](const std::string& text) {
        return bad(
            check::checkProgramOfJob(text, good.sideText, good.made.job, good.made.tools, &target),
            false);
    };
    const auto alone = [&](const std::string& text) {
        return bad(check::checkProgram(text, good.sideText, &target), true);
    };
    ++score.made;
    if (beside(after) > beside(before))
        ++score.withPlan;
    else
        std::cerr << "missed: " << fault.name << ", seed " << seed << '\n';
    score.fromText += alone(after) > alone(before) ? 1 : 0;
}

int run(int wanted, unsigned firstSeed) {
    constexpr unsigned mostTries = 20;
    Score all;
    bool isWhole = true;
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
