// SPDX-License-Identifier: MIT
// What the writer writes, a reader that knows nothing of it reads back to the paths of the job.
#include "gcode/dialects.h"
#include "tests/gcode/job_to_write.h"

#include <cmath>
#include <gtest/gtest.h>
#include <vector>

namespace torvik {
namespace {

constexpr double near = 0.0016; // half of the last digit, and the tolerance of positions

// A statement as a machine would move: its words, and the places before and after it.
struct Move {
    std::string words;
    std::map<char, double> from, to;

    bool has(char letter) const { return words.find(letter) != words.npos; }
};

std::vector<Move> readMoves(const std::string& statements) {
    std::vector<Move> moves;
    std::map<char, double> at;
    std::istringstream lines(statements);
    for (std::string line; std::getline(lines, line, ';');) {
        if (line[0] != 'G' || std::atof(line.c_str() + 1) > 3)
            continue;
        moves.push_back({line, at, at});
        std::istringstream words(line);
        for (std::string word; words >> word;)
            at[word[0]] = std::atof(word.c_str() + 1);
        moves.back().to = at;
    }
    return moves;
}

void expectNear(double x, double y, float pathX, float pathY) {
    EXPECT_LE(std::hypot(x - pathX, y - pathY), 2 * near);
}

void expectPath(const Move& move, const Path& path) {
    const auto [x, y, fromX, fromY] =
        std::tuple(move.to.at('X'), move.to.at('Y'), move.from.at('X'), move.from.at('Y'));
    const int g = path.intType == straightLine ? 1 : path.intType == arcClockwise ? 2 : 3;
    EXPECT_EQ(move.to.at('G'), g);
    expectNear(fromX, fromY, path.sngStartX, path.sngStartY);
    expectNear(x, y, path.sngEndX, path.sngEndY);
    if (path.intType == straightLine)
        return;
    const double centreX = fromX + move.to.at('I');
    const double centreY = fromY + move.to.at('J');
    expectNear(centreX, centreY, path.sngCentreX, path.sngCentreY);
    EXPECT_NEAR(std::hypot(x - centreX, y - centreY), path.sngRadius, 2 * near)
        << "the end of an arc is not on its circle";
}

// 90 lines and arcs both ways in chains with gaps between them.
std::string wanderingDrawing() {
    std::string text = "SP2;";
    unsigned state = 12345;
    const auto next = [&](unsigned limit) {
        state = state * 1103515245U + 12345U;
        return std::to_string((state >> 16U) % limit) + "." + std::to_string(state % 97U);
    };
    for (int i = 0; i < 120; ++i) {
        const char* const before[] = {"PU", "PD", "AA", "AA"};
        const std::string sweeps[] = {"", "", "," + next(350), ",-" + next(350)};
        text += before[i % 4] + next(8000) + "," + next(6000) + sweeps[i % 4] + ";";
    }
    return text;
}

TEST(RoundTrip, GivesThePathsOfEachPass) {
    constexpr double levels[] = {-1.25, -2.5, -2.75, -3};
    JobToWrite work(wanderingDrawing());
    work.change("2.depth=3 2.step=1.25 2.final=0.25 2.finalFeed=1800");
    for (const std::int16_t target : {targetWinCam, targetWinNc, targetMaskor, targetKestra}) {
        SCOPED_TRACE(target);
        std::vector<Move> cuts;
        for (const Move& move : readMoves(work.body(target))) {
            const double z = move.to.at('Z');
            if (move.to.at('G') == 0)
                EXPECT_TRUE(move.has('X') ? z == 5 : z >= 2) << "a rapid into the material";
            else if (move.has('X'))
                cuts.push_back(move);
        }
        ASSERT_EQ(cuts.size(), 90 * std::size(levels));
        for (std::size_t i = 0; i < cuts.size(); ++i) {
            EXPECT_EQ(cuts[i].to.at('Z'), levels[i / 90]);
            EXPECT_EQ(cuts[i].to.at('F') / cuts[0].to.at('F'), i / 90 == 3 ? 6 : 1);
            expectPath(cuts[i], work.job.drawing.gudtPaths[static_cast<long>(i % 90) + 1]);
        }
    }
}

} // namespace
} // namespace torvik
