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

// A statement as a machine would move: where it stood, where it goes, and the statement's words.
struct Move {
    int g = 0;
    double fromX = 0, fromY = 0, fromZ = 0;
    double x = 0, y = 0, z = 0;
    std::map<char, double> words;
};

std::vector<Move> readMoves(const std::string& statements) {
    std::vector<Move> moves;
    Move at;
    std::istringstream lines(statements);
    for (std::string line; std::getline(lines, line, ';');) {
        at.words.clear();
        std::istringstream words(line);
        for (std::string word; words >> word;)
            at.words[word[0]] = std::atof(word.c_str() + 1);
        if (!at.words.contains('G') || at.words['G'] > 3)
            continue;
        at.g = static_cast<int>(at.words['G']);
        at.fromX = at.x, at.fromY = at.y, at.fromZ = at.z;
        at.x = at.words.contains('X') ? at.words['X'] : at.x;
        at.y = at.words.contains('Y') ? at.words['Y'] : at.y;
        at.z = at.words.contains('Z') ? at.words['Z'] : at.z;
        moves.push_back(at);
    }
    return moves;
}

void expectPath(const Move& move, const Path& path) {
    EXPECT_EQ(move.g, path.intType == straightLine ? 1 : path.intType == arcClockwise ? 2 : 3);
    EXPECT_NEAR(move.fromX, path.sngStartX, near);
    EXPECT_NEAR(move.fromY, path.sngStartY, near);
    EXPECT_NEAR(move.x, path.sngEndX, near);
    EXPECT_NEAR(move.y, path.sngEndY, near);
    if (move.g == 1)
        return;
    const double centreX = move.fromX + move.words.at('I');
    const double centreY = move.fromY + move.words.at('J');
    EXPECT_NEAR(centreX, path.sngCentreX, 2 * near);
    EXPECT_NEAR(centreY, path.sngCentreY, 2 * near);
    EXPECT_NEAR(std::hypot(move.x - centreX, move.y - centreY), path.sngRadius, 2 * near)
        << "the end of an arc is not on its circle";
}

// 90 lines and arcs both ways in chains with gaps between them, then 20 holes of two sizes.
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
    text += "SP5;";
    for (int i = 0; i < 20; ++i)
        text += "PU" + next(8000) + "," + next(6000) + (i % 2 == 0 ? ";CI40;" : ";CI60;");
    return text;
}

class RoundTrip : public testing::TestWithParam<std::int16_t> {};

TEST_P(RoundTrip, GivesThePathsOfEachPass) {
    JobToWrite work(wanderingDrawing());
    work.change("2.depth=3 2.step=1.25 2.final=0.25 2.finalFeed=1800 5/2.tool=2");
    std::vector<Move> cuts;
    std::vector<Move> bottoms;
    for (const Move& move : readMoves(work.body(GetParam()))) {
        const bool inPlane = move.words.contains('X');
        if (move.g == 0)
            EXPECT_TRUE(inPlane ? move.z == 5 : move.z >= 2) << "a rapid into the material";
        else if (inPlane)
            cuts.push_back(move);
        else if (move.z == -1 && move.fromZ == 2)
            bottoms.push_back(move);
    }
    constexpr double levels[] = {-1.25, -2.5, -2.75, -3};
    ASSERT_EQ(cuts.size(), 90 * std::size(levels));
    for (std::size_t i = 0; i < cuts.size(); ++i) {
        EXPECT_EQ(cuts[i].z, levels[i / 90]);
        EXPECT_EQ(cuts[i].words.at('F') / cuts[0].words.at('F'), i / 90 == 3 ? 6 : 1);
        expectPath(cuts[i], work.job.drawing.gudtPaths[static_cast<long>(i % 90) + 1]);
    }
    ASSERT_EQ(bottoms.size(), 20U);
    for (long i = 0; i < 20; ++i) {
        const Path& circle = work.job.drawing.gudtPaths[i < 10 ? 91 + 2 * i : 72 + 2 * i];
        EXPECT_NEAR(bottoms[static_cast<std::size_t>(i)].x, circle.sngCentreX, near);
        EXPECT_NEAR(bottoms[static_cast<std::size_t>(i)].y, circle.sngCentreY, near);
    }
}

INSTANTIATE_TEST_SUITE_P(Targets, RoundTrip,
                         testing::Values(targetWinCam, targetWinNc, targetMaskor, targetKestra));

} // namespace
} // namespace torvik
