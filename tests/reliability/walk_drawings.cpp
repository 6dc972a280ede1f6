// SPDX-License-Identifier: MIT
#include "tests/reliability/walk_drawings.h"

#include "tests/check/random_job.h"

#include <array>
#include <fstream>
#include <iterator>
#include <string>

namespace torvik {
namespace {

std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void damage(std::string& text, Chance& chance) {
    static constexpr std::array<const char*, 8> pieces{
        "PD1e9,5;", "SP9;", "CI0;", "AA0,0,400;", ";;", "\n\r", "PDx,y;", "PU99999999,0;"};
    for (int i = chance.between(1, 4); i > 0; --i) {
        const std::size_t at = chance.below(text.size() + 1);
        if (chance.percent(40))
            text.insert(at, chance.oneOf(pieces));
        else if (chance.percent(50))
            text.erase(at, chance.below(40));
        else if (at < text.size())
            text[at] = static_cast<char>(chance.between(0, 255));
    }
}

} // namespace

WalkDrawing makeDrawing(Chance& chance, const std::filesystem::path& folder, bool mayBeDamaged) {
    static constexpr std::array<const char*, 5> names{"allpens", "bracket", "clockface", "gear",
                                                      "nameplate"};
    const std::filesystem::path samples = TORVIK_SAMPLES;
    WalkDrawing made;
    std::string text;
    if (chance.percent(40)) {
        const std::string name = chance.oneOf(names);
        made.file = folder / (name + ".plt");
        text = bytesOf(samples / (name + ".plt"));
        if (chance.percent(30)) {
            std::filesystem::create_directory(folder / "PlotSave");
            std::filesystem::copy_file(samples / (name + ".plx"),
                                       folder / "PlotSave" / (name + ".plx"),
                                       std::filesystem::copy_options::overwrite_existing);
        }
    } else {
        const int number = chance.between(1, 3);
        made.file = folder / ("part " + std::to_string(number) + ".plt");
        text = RandomJob(static_cast<unsigned>(chance.between(1, 9999))).drawing() + "SP0;";
    }
    made.isDamaged = mayBeDamaged && chance.percent(15);
    if (made.isDamaged)
        damage(text, chance);
    std::ofstream(made.file, std::ios::binary) << text;
    return made;
}

} // namespace torvik
