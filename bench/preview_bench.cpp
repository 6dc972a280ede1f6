// SPDX-License-Identifier: MIT
// Showing drawings of 30 000 elements in a preview of 1280 by 1000 pixels, on a screen at 100 % and
// at 200 %: the line preview, one frame of the blinking, and the finished piece. Each frame is
// copied to the screen's memory as a window does it. The time of all threads is counted.
#include "base/logger.h"
#include "bench/drawings.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "job/pens.h"
#include "preview/line_picture.h"
#include "preview/machined_path.h"
#include "preview/piece_picture.h"
#include "tools/tool_list.h"

#include <QPainter>

#include <benchmark/benchmark.h>
#include <cmath>
#include <numeric>
#include <random>
#include <string>

namespace torvik {
namespace {

constexpr int width = 1280;
constexpr int height = 1000;
constexpr long elements = 30000;
constexpr float cutter = 3; // mm
constexpr float drill = 1;

// A job with a drawing of that kind, fitted for a screen of that scale factor.
class Preview {
public:
    Preview(std::string drawing, bool drilled, std::int64_t pixelRatio) {
        readInstructions(m_job.drawing, std::move(drawing), "drawing", m_logger);
        SetUpPens(m_job, m_logger);
        m_job.answers.gudtPens[1].blnDrill = drilled;
        for (Settings& settings : m_job.answers.gudtSettings) {
            settings.intTool = 1;
            settings.sngDepth = static_cast<float>(&settings - &m_job.answers.gudtSettings[1]) + 1;
        }
        m_tools.gudtTools.append({1, "Slot drill", drilled ? drill : cutter});
        m_tools.gintToolCount = 1;
        m_view.pixelRatio = static_cast<double>(pixelRatio);
        m_size = QSize(width, height) * m_view.pixelRatio;
        m_screen = QImage(m_size, QImage::Format_RGB32);

        LineScale lines;
        torvik::GetScale(m_job.drawing, m_frame, lines, m_logger);
        m_view.fit = lines.fit;
        m_view.scaleHeight = lines.picture.sngHeight;
    }

    void plotLines() {
        m_lines.forget();
        m_lines.PlotLines(m_job, m_view, m_size);
        copyToScreen(m_lines.image());
    }

    void blink(const std::vector<std::int16_t>& paths, bool visible) {
        m_lines.PlotLines(m_job, m_view, m_size);
        m_lines.plotBlink(paths, visible);
        copyToScreen(m_lines.image());
    }

    bool drawPiece() {
        PieceScale piece;
        if (!GetPieceScale(m_job.drawing, m_job.answers, m_tools, m_frame, piece, m_logger))
            return false;
        PictureView view = m_view;
        view.fit = piece.fit;
        view.scaleHeight = piece.picture.sngHeight;
        const auto works = worksByDepth(m_job.drawing, m_job.answers, m_tools);
        paintPiece(m_piece, m_size, view, works, piece);
        copyToScreen(m_piece);
        return depthsOf(works).gintDepthCount > 0;
    }

private:
    void copyToScreen(const QImage& image) { QPainter(&m_screen).drawImage(0, 0, image); }

    const FrameSize m_frame{width * twipsPerPixel, height* twipsPerPixel};
    Job m_job;
    ToolList m_tools;
    Logger m_logger;
    PictureView m_view;
    QSize m_size;
    LinePicture m_lines;
    QImage m_piece;
    QImage m_screen;
};

// Elements as long as those of real drawings with so many: runs of a hundred, 2 mm each, all over
// a sheet of 400 by 300 mm. `element` writes one from the angle that the run goes in.
template <typename Element>
std::string runs(Element element) {
    std::minstd_rand engine{1};
    const auto below = [&](long limit) { return static_cast<long>(engine()) % limit; };
    std::string text = "SP1;\n";
    double angle = 0;
    for (long i = 0, x = 0, y = 0; i < elements; ++i) {
        if (i % 100 == 0) {
            x = 2000 + below(12000);
            y = 2000 + below(8000);
            text += "PU" + std::to_string(x) + "," + std::to_string(y) + ";\n";
        }
        angle += static_cast<double>(below(1000)) / 1000 - 0.5;
        text += element(x, y, angle);
    }
    return text;
}

std::string linesDrawing() {
    return runs([](long& x, long& y, double angle) {
        x += std::lround(80 * std::cos(angle));
        y += std::lround(80 * std::sin(angle));
        return "PD" + std::to_string(x) + "," + std::to_string(y) + ";\n";
    });
}

// Quarter circles of 2 mm.
std::string arcsDrawing() {
    return runs([](long& x, long& y, double angle) {
        const long centreX = x + std::lround(80 * std::cos(angle));
        const long centreY = y + std::lround(80 * std::sin(angle));
        const std::string start = "PU" + std::to_string(x) + "," + std::to_string(y) + ";\n";
        x += 2 * (centreX - x);
        y += 2 * (centreY - y);
        return start + "AA" + std::to_string(centreX) + "," + std::to_string(centreY) + ",90;\n";
    });
}

// Circles of 2 to 3 mm in 20 sizes, anywhere on such a sheet, one over the other.
std::string circlesDrawing() {
    return circleDrawing(elements, 20);
}

// Lines of 20 to 40 mm, anywhere on such a sheet.
std::string longLinesDrawing() {
    std::minstd_rand engine{1};
    const auto below = [&](long limit) { return static_cast<long>(engine()) % limit; };
    std::string text = "SP1;\n";
    for (long i = 0; i < elements; ++i) {
        const long x = 1600 + below(12800);
        const long y = 1600 + below(8800);
        const double angle = static_cast<double>(below(6283)) / 1000;
        const auto length = static_cast<double>(800 + below(800));
        text += "PU" + std::to_string(x) + "," + std::to_string(y) + ";\nPD" +
                std::to_string(x + std::lround(length * std::cos(angle))) + "," +
                std::to_string(y + std::lround(length * std::sin(angle))) + ";\n";
    }
    return text;
}

// Circles of 40 mm in 20 sizes.
std::string largeCirclesDrawing() {
    return circleDrawing(elements, 20, 800);
}

// 200 by 150 holes, 2 mm from one another, in 20 sizes of up to 1.5 mm.
std::string plateDrawing() {
    std::string text = "SP1;\n";
    for (long i = 0; i < elements; ++i)
        text += "PU" + std::to_string(i % 200 * 80) + "," + std::to_string(i / 200 * 80) + ";\nCI" +
                std::to_string(10 + i % 20) + ";\n";
    return text;
}

using Drawing = std::string (*)();

void plotLines(benchmark::State& state, Drawing drawing) {
    Preview preview(drawing(), false, state.range(0));
    for (auto _ : state)
        preview.plotLines();
}

// Every second path blinks, shown and hidden in turns.
void blinkFrame(benchmark::State& state, Drawing drawing) {
    Preview preview(drawing(), false, state.range(0));
    std::vector<std::int16_t> paths(elements / 2);
    for (std::size_t i = 0; i < paths.size(); ++i)
        paths[i] = static_cast<std::int16_t>(2 * i + 1);
    bool visible = true;
    preview.blink(paths, false);
    for (auto _ : state)
        preview.blink(paths, visible = !visible);
}

// The first frame of a page: the picture without the page's paths is painted. It comes with the
// page's change, not at a tick.
void firstBlinkFrame(benchmark::State& state, Drawing drawing) {
    Preview preview(drawing(), false, state.range(0));
    std::vector<std::int16_t> paths(elements / 2);
    std::iota(paths.begin(), paths.end(), std::int16_t{1});
    preview.blink(paths, true);
    for (auto _ : state) {
        paths.back() =
            static_cast<std::int16_t>(paths.back() == elements ? elements / 2 : elements);
        preview.blink(paths, true);
    }
}

void drawPiece(benchmark::State& state, Drawing drawing, bool drilled) {
    Preview preview(drawing(), drilled, state.range(0));
    for (auto _ : state)
        if (!preview.drawPiece())
            state.SkipWithError("the piece was not drawn");
}

void screens(benchmark::internal::Benchmark* benchmark) {
    benchmark->ArgName("scale")
        ->Arg(1)
        ->Arg(2)
        ->Unit(benchmark::kMillisecond)
        ->MeasureProcessCPUTime();
}

BENCHMARK_CAPTURE(plotLines, lines, linesDrawing)->Name("drawing lines")->Apply(screens);
BENCHMARK_CAPTURE(plotLines, arcs, arcsDrawing)->Name("drawing arcs")->Apply(screens);
BENCHMARK_CAPTURE(plotLines, circles, circlesDrawing)->Name("drawing circles")->Apply(screens);
BENCHMARK_CAPTURE(plotLines, longLines, longLinesDrawing)
    ->Name("drawing long lines")
    ->Apply(screens);
BENCHMARK_CAPTURE(plotLines, largeCircles, largeCirclesDrawing)
    ->Name("drawing large circles")
    ->Apply(screens);
BENCHMARK_CAPTURE(firstBlinkFrame, lines, linesDrawing)
    ->Name("first frame of blinking lines")
    ->Apply(screens);
BENCHMARK_CAPTURE(firstBlinkFrame, circles, circlesDrawing)
    ->Name("first frame of blinking circles")
    ->Apply(screens);
BENCHMARK_CAPTURE(blinkFrame, lines, linesDrawing)
    ->Name("a frame of blinking lines")
    ->Apply(screens);
BENCHMARK_CAPTURE(blinkFrame, circles, circlesDrawing)
    ->Name("a frame of blinking circles")
    ->Apply(screens);
BENCHMARK_CAPTURE(drawPiece, lines, linesDrawing, false)
    ->Name("the piece, cut lines")
    ->Apply(screens);
BENCHMARK_CAPTURE(drawPiece, arcs, arcsDrawing, false)->Name("the piece, cut arcs")->Apply(screens);
BENCHMARK_CAPTURE(drawPiece, circles, circlesDrawing, false)
    ->Name("the piece, cut circles")
    ->Apply(screens);
BENCHMARK_CAPTURE(drawPiece, longLines, longLinesDrawing, false)
    ->Name("the piece, cut long lines")
    ->Apply(screens);
BENCHMARK_CAPTURE(drawPiece, largeCircles, largeCirclesDrawing, false)
    ->Name("the piece, cut large circles")
    ->Apply(screens);
BENCHMARK_CAPTURE(drawPiece, holes, plateDrawing, true)
    ->Name("the piece, drilled holes")
    ->Apply(screens);

} // namespace
} // namespace torvik
