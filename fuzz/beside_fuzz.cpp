// SPDX-License-Identifier: MIT
// Any bytes as outlines of a pen that the tool runs beside: it is refused, or what is written is
// read back, and the tool enters neither the part nor the wall of the recess. Byte 0 chooses the
// side, byte 1 the tool, byte 2 the step of a pocket and whether there are tabs; then each pair of
// bytes is a corner, and a pair of two lowest values begins the next outline.
#include "fuzz/source_invariants.h"
#include "tests/prepare/swept.h"

#include <span>

namespace torvik {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr double cornerGrid = 0.2 * plotterUnitsPerMm; // the drawing is 51 mm wide and high
constexpr double allowed = 0.02 * plotterUnitsPerMm;
constexpr std::size_t mostCorners = 60;

double coordinate(std::uint8_t byte) {
    return cornerGrid * (byte - 128);
}

// Closed outlines, those that enclose nothing left out.
std::vector<Corners> decoded(Bytes bytes) {
    std::vector<Corners> outlines(1);
    for (std::size_t i = 0; i + 1 < bytes.size() && i / 2 < mostCorners; i += 2) {
        if (bytes[i] == 0 && bytes[i + 1] == 0)
            outlines.emplace_back();
        else
            outlines.back().push_back({coordinate(bytes[i]), coordinate(bytes[i + 1])});
    }
    std::erase_if(outlines, [](const Corners& corners) { return corners.size() < 3; });
    return outlines;
}

SourceDrawing drawn(const std::vector<Corners>& outlines) {
    SourceDrawing source;
    for (const Corners& corners : outlines) {
        Stroke& stroke = source.strokes.emplace_back(Stroke{1, corners.front(), {}});
        for (std::size_t i = 1; i <= corners.size(); ++i)
            stroke.segments.push_back(lineSegment(corners[i % corners.size()]));
    }
    return source;
}

PenRun runOf(Bytes choice) {
    PenRun run;
    run.side = static_cast<RunSide>(choice[0] % 3);
    run.diameter = 0.5 + choice[1] / 32.0;
    run.stepPercent = 20 + choice[2] % 64;
    return run;
}

void run(Bytes choice, Bytes corners) {
    const std::vector<Corners> outlines = decoded(corners);
    PrepareOptions options;
    const PenRun penRun = runOf(choice);
    options.beside.runs[1] = penRun;
    if ((choice[2] & 64U) != 0)
        options.beside.tabs.push_back({1, 2, 1 + choice[2] % 5, 1.5});
    PreparedDrawing prepared;
    try {
        prepared = prepareDrawing(drawn(outlines), options);
    } catch (const Misread&) {
        throw;
    } catch (const RunTimeError&) {
        return; // a refusal
    }
    if (prepared.report.beside.openLines != 0)
        return; // those stay on their line
    const Area part = Area::enclosedBy(outlines);
    const Area way = swept(prepared.strokes, penRun.diameter / 2 * plotterUnitsPerMm);
    const double entered = penRun.side == RunSide::outside
                               ? way.within(part.grown(-allowed, 0.02)).size()
                               : way.without(part.grown(allowed, 0.02)).size();
    holds(entered < 1e-3, "the tool enters no more than is allowed");
}

} // namespace
} // namespace torvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t choices = 3;
    if (size > choices)
        torvik::run({data, choices}, {data + choices, size - choices});
    return 0;
}
