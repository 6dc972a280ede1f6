// SPDX-License-Identifier: MIT
// Puts faults into good programs and prints how many of them the check finds: laid beside the job,
// and from the text alone. Programs in which the machine does the same as before are left out.
// usage: mutants [PROGRAMS OF A KIND [FIRST SEED [good]]]     ("good": no faults)
#include "check/plan/plan.h"
#include "check/program_reader.h"
#include "check/sense/sense.h"
#include "commands/target_names.h"
#include "tests/mutants/faults.h"
#include "tests/mutants/written_job.h"

#include <algorithm>
#include <cstdlib>
#include <iomanip>
#include <iostream>
#include <map>
#include <sstream>

namespace torvik {
namespace {

const check::Target& targetOf(const Dialect& control) {
    return targetNamed(check::targets(), std::string(control.optionName));
}

struct GoodProgram : WrittenJob {
    GoodProgram(unsigned start, const Dialect& control) : WrittenJob(start, control) {
        std::istringstream stream(program);
        for (std::string line; std::getline(stream, line);) {
            line.pop_back();
            const bool isTop = lines.empty() && line[0] != 'N';
            (isTop ? top : lines)
                .push_back(line[0] == 'N' ? line.substr(line.find(' ') + 1) : line);
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

    const check::Target& target() const { return targetOf(dialect); }
    check::Report besideJob(const std::string& text) const {
        return check::checkProgramOfJob(text, sideText, made.job, made.tools, &target());
    }

    Lines top;
    Lines lines;
};

// What the machine does, in numbers.
std::vector<std::array<double, 10>> walked(const std::string& text, const check::Target& target) {
    std::vector<std::array<double, 10>> steps;
    check::Findings ignored;
    const auto known = [](double value) { return std::isnan(value) ? -1e9 : value; };
    for (const check::Move& move : check::readProgram(target, text, ignored).moves) {
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

// Whether the drawing itself says the same, worked out without the program: cuts beyond this side
// of the billet, or more than its size.
bool isTrueOfBillet(const check::Finding& finding, const WrittenJob& written) {
    if (finding.kind != check::Kind::outside && finding.kind != check::Kind::tooWide)
        return false;
    check::Findings ofJob;
    const check::Reach reach = check::reachOf(written.made.job, written.made.tools);
    check::findBilletSense(written.made.job, reach, {200, 150, 6}, ofJob);
    if (finding.kind == check::Kind::tooWide)
        return finding.values[2] == "X" ? reach.area.maxX - reach.area.minX > 200
                                        : reach.area.maxY - reach.area.minY > 150;
    const auto sideOf = [](const check::Finding& one) {
        return one.values[1] + (one.values[0].find('-') != std::string::npos ? " low" : " high");
    };
    return std::ranges::any_of(ofJob.byLine(), [&](const check::Finding& asked) {
        return sideOf(asked) == sideOf(finding);
    });
}

// Whether the tool comes from another cut without leaving the material.
bool staysDown(const std::string& program, std::uint32_t line) {
    std::istringstream stream(program);
    std::string before;
    for (std::uint32_t i = 1; i < line; ++i)
        std::getline(stream, before);
    return before.find(" X") != std::string::npos && before.find(" G0 ") == std::string::npos;
}

bool isOfJoinedPen(const check::Finding& finding, const WrittenJob& written) {
    return finding.kind == check::Kind::deeperThanAsked &&
           finding.values[3].find("begins where") != std::string::npos &&
           staysDown(written.program, finding.line);
}

struct Alarms {
    std::map<std::string, int> trueOnes;
    int falseOnes = 0;

    // True is what the drawing says of the billet, a pen that begins where a deeper one ended, and
    // behind its line a pass that lacks those cuts.
    void take(const check::Findings& findings, const check::Findings& ofPlan,
              const WrittenJob& written) {
        const auto isJoined = [&](const auto& one) { return isOfJoinedPen(one, written); };
        const auto planned = ofPlan.byLine();
        const auto joined = std::ranges::find_if(planned, isJoined);
        for (const check::Finding& finding : findings.byLine()) {
            const check::KindRow& row = check::rowOf(finding.kind);
            if (row.level < check::Level::wrong)
                continue;
            const bool isOfPass = finding.kind == check::Kind::passDiffers &&
                                  joined != planned.end() && joined->line < finding.line;
            if (isOfPass || isJoined(finding) || isTrueOfBillet(finding, written)) {
                ++trueOnes[std::string(row.name)];
                continue;
            }
            ++falseOnes;
            std::cerr << "false alarm: seed " << written.seed << ", " << written.dialect.name
                      << ", line " << finding.line << ": " << sentenceOf(finding) << '\n';
        }
    }

    void print(const char* way) const {
        std::cout << way << ": " << falseOnes << " false alarms, true ones:";
        for (const auto& [name, count] : trueOnes)
            std::cout << ' ' << name << ' ' << count << ';';
        std::cout << '\n';
    }
};

// Whether nothing is found in good programs but what is true.
bool areGood(int jobs, unsigned firstSeed) {
    Alarms besideJob;
    Alarms fromText;
    for (unsigned seed = firstSeed; seed < firstSeed + static_cast<unsigned>(jobs); ++seed)
        for (const Dialect& control : dialects()) {
            const WrittenJob good(seed, control, true);
            const check::Target* const target = &targetOf(control);
            const auto planned = check::checkProgramOfJob(good.program, good.sideText,
                                                          good.made.job, good.made.tools, target);
            besideJob.take(planned.findings, planned.findings, good);
            fromText.take(check::checkProgram(good.program, good.sideText, target).findings,
                          planned.findings, good);
        }
    std::cout << jobs << " jobs, for each control a program as it is written\n";
    besideJob.print("Beside the job");
    fromText.print("From the text");
    std::cout << '\n';
    return besideJob.falseOnes + fromText.falseOnes == 0;
}

int run(int wanted, unsigned firstSeed, bool onlyGood) {
    constexpr unsigned mostTries = 20;
    Score all;
    bool isWhole = areGood(10 * wanted, firstSeed);
    if (onlyGood)
        return isWhole ? 0 : 1;
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
    try {
        return torvik::run(wanted, static_cast<unsigned>(firstSeed), argc > 3);
    } catch (const std::exception& error) {
        std::cerr << "mutants: " << error.what() << '\n';
        return 2;
    }
}
