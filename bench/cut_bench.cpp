// SPDX-License-Identifier: MIT
// The windows of a piece, of a program with 30 000 elements in ten passes: a frame of its picture
// and of Play at 1000 by 800 pixels, and a frame of the solid while it turns, of 512 by 512 cells
// at 800 by 600 pixels. Off the screen, on two threads.
#include "bench/long_program.h"
#include "preview/cut/field_painter.h"
#include "preview/cut/solid_painter.h"
#include "preview/cut/timeline.h"
#include "sweep/growth.h"

#include <benchmark/benchmark.h>

namespace torvik {
namespace {

constexpr PlateSize plate{300, 300}; // mm
constexpr double tool = 3;
constexpr double depth = 6;

// The piece, swept once for all benchmarks.
struct Piece {
    check::Moves moves = longProgram(plate);
    CutBillet billet{0, 0, plate.width, plate.height, depth};
    sweep::Growth growth{moves, {{1, tool}}, {0, 0, plate.width, plate.height}};
    CutShades shades;

    Piece() {
        growth.build({});
        shades = CutShades(growth.whole(), growth.cuts(), billet);
    }
};

Piece& piece() {
    static Piece all;
    return all;
}

class Picture {
public:
    Picture() {
        m_view.setSize(m_image.size());
        m_view.setWhole({0, 0, plate.width, plate.height});
    }
    void paint(const sweep::Field& field) {
        m_painter.paint(m_image, field, piece().billet, piece().shades, m_view, 1);
    }

private:
    QImage m_image{1000, 800, QImage::Format_RGB32};
    CutView m_view;
    FieldPainter m_painter;
};

void pictureFrame(benchmark::State& state) {
    piece();
    Picture picture;
    for (auto _ : state)
        picture.paint(piece().growth.whole());
}

// So fast that all of it is shown in 40 seconds.
void playFrame(benchmark::State& state) {
    Picture picture;
    sweep::Growth& growth = piece().growth;
    const Timeline timeline(piece().moves);
    const double step = timeline.seconds() / (40 * 40);
    double now = 0;
    for (auto _ : state) {
        now = now + step < timeline.seconds() ? now + step : 0;
        const Moment moment = timeline.at(now);
        growth.show(moment.move, moment.fraction);
        picture.paint(growth.field());
    }
}

void solidFrame(benchmark::State& state) {
    const SolidCells cells(piece().growth.whole(), piece().billet);
    QImage image(800, 600, QImage::Format_RGB32);
    SolidCamera camera;
    camera.lift = static_cast<double>(state.range(0)) / 100;
    for (auto _ : state) {
        camera.turnBy(0.02, 0);
        paintSolid(image, cells, camera);
    }
}

void solidCells(benchmark::State& state) {
    for (auto _ : state)
        benchmark::DoNotOptimize(SolidCells(piece().growth.whole(), piece().billet));
}

void millis(benchmark::internal::Benchmark* benchmark) {
    benchmark->Unit(benchmark::kMillisecond)->UseRealTime();
}

BENCHMARK(pictureFrame)->Name("a frame of the picture")->Apply(millis);
BENCHMARK(playFrame)->Name("a frame of play")->Apply(millis);
BENCHMARK(solidFrame)
    ->Name("a frame of the solid")
    ->ArgName("lift")
    ->Arg(85)
    ->Arg(20)
    ->Apply(millis);
BENCHMARK(solidCells)->Name("making a field ready for the solid")->Apply(millis);

} // namespace
} // namespace torvik
