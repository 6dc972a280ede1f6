// SPDX-License-Identifier: MIT
#include "prepare/prepare.h"

#include "base/errors.h"
#include "base/files.h"
#include "job/hpgl_reader.h"
#include "job/job.h"
#include "job/pens.h"
#include "prepare/fitting/grid.h"
#include "prepare/placing/inside_first.h"
#include "prepare/placing/join.h"
#include "prepare/placing/order.h"
#include "prepare/report.h"
#include "prepare/writing/check.h"
#include "prepare/writing/writer.h"

#include <iterator>
#include <utility>

namespace torvik {
namespace {

// The rest of the tolerance is for what rounding, the chords of curves and single precision add.
constexpr double fittingShare = 0.97;

class Preparation {
public:
    Preparation(SourceDrawing source, const PrepareOptions& options)
        : m_options(options), m_strokes(std::move(source.strokes)),
          m_leftOut(std::move(source.leftOut)), m_fit{options.tolerance * plotterUnitsPerMm *
                                                          fittingShare,
                                                      options.roundTurn, options.arcs,
                                                      options.pointLimit} {
        m_result.report.source = std::move(source.report);
    }

    PreparedDrawing run() {
        placeAll();
        measure(m_result.report.cutBefore, m_result.report.airBefore);
        m_result.report.elementsBefore = segmentCount(m_strokes);
        if (m_options.keepBefore) {
            m_result.before = m_strokes;
            m_result.leftOut = std::move(m_leftOut);
        }
        bringInOrder();
        goOnUnlessStopped();
        fitStrokes(m_strokes, m_fit, m_result.report.fit);
        m_exact.settle(m_strokes, m_options.tolerance * plotterUnitsPerMm);
        goOnUnlessStopped();
        write();
        measure(m_result.report.cutAfter, m_result.report.airAfter);
        describe();
        m_result.strokes = std::move(m_strokes);
        return std::move(m_result);
    }

private:
    // Dots become circles between scaling and placing: their diameter is the part's, and the
    // drawing's corner is theirs as well.
    void placeAll() {
        if (std::vector<Stroke> penless = mapPens(m_strokes, m_options.pens); !penless.empty()) {
            m_result.report.source.lose(Loss::noPen, static_cast<long>(penless.size()));
            m_leftOut.insert(m_leftOut.end(), std::make_move_iterator(penless.begin()),
                             std::make_move_iterator(penless.end()));
            m_result.report.source.remarks.emplace_back(
                "pen 0 has a colour of its own; --pen 0=1 draws its lines by pen 1");
        }
        place(m_strokes, {m_options.scale, Mirror::none, 0, {}}, &m_leftOut);
        std::optional<double> dots;
        if (m_options.dots)
            dots = *m_options.dots * plotterUnitsPerMm;
        m_result.report.dots = replaceDots(m_strokes, dots);
        Placement placement{1, m_options.mirror, m_options.rotation, {}};
        if (m_options.origin)
            placement.origin = *m_options.origin * plotterUnitsPerMm;
        place(m_strokes, placement, &m_leftOut);
        m_result.report.dotsDrawn = dots.has_value();
        if (m_strokes.empty())
            throw RunTimeError(whyNothing());
    }

    std::string whyNothing() const {
        if (m_result.report.dots > 0)
            return "the drawing holds nothing but dots; with a diameter they become circles";
        const std::string lost = lossLine(m_result.report);
        return "the drawing holds nothing to draw" +
               (lost.empty() ? "" : "; not carried over: " + lost);
    }

    void goOnUnlessStopped() const {
        if (m_options.stop.stop_requested())
            throw RunTimeError("the preparation was stopped");
    }

    // Beside a circle of the drawing a tool makes a circle, too.
    void runTools() {
        const RunOptions& beside = m_options.beside;
        if (beside.runs.empty() && beside.tabs.empty())
            return;
        m_exact = ExactCircles(m_strokes, beside);
        runBeside(m_strokes, beside, m_options.tolerance * plotterUnitsPerMm,
                  m_result.report.beside);
    }

    // A pocket's own order is from the inside out already.
    bool isInsideFirst() const {
        return m_options.optimize || m_options.beside.insideFirst || !m_options.beside.runs.empty();
    }

    // A new order can bring strokes together that touch.
    void bringInOrder() {
        PrepareReport& report = m_result.report;
        for (Stroke& stroke : m_strokes)
            settle(stroke);
        // What is too small to be written; dots have become circles before.
        std::erase_if(m_strokes, [](const Stroke& stroke) { return stroke.isDot(); });
        if (m_strokes.empty())
            throw RunTimeError("the drawing holds nothing to draw");
        sortByPen(m_strokes);
        if (m_options.dropDuplicates)
            report.duplicates = dropDuplicates(m_strokes);
        report.joined = joinTouching(m_strokes);
        runTools();
        if (m_options.optimize) {
            orderStrokes(m_strokes, m_options.stop);
            report.joined += joinTouching(m_strokes);
        }
        if (isInsideFirst())
            drawInsideFirst(m_strokes, m_options.tolerance * plotterUnitsPerMm);
    }

    void write() {
        requireFewEnough(m_strokes);
        m_result.text = writeDrawing(m_strokes);
        checkWritten(m_result.text, m_strokes, m_options.tolerance);
    }

    void measure(double& cut, double& air) const {
        for (const Stroke& stroke : m_strokes)
            cut += drawnLength(stroke) / plotterUnitsPerMm;
        air = airLength(m_strokes) / plotterUnitsPerMm;
    }

    void describe() {
        PrepareReport& report = m_result.report;
        report.elementsAfter = segmentCount(m_strokes);
        const StrokeExtents extents = extentsOf(m_strokes);
        report.extents = {extents.low * (1 / plotterUnitsPerMm),
                          extents.high * (1 / plotterUnitsPerMm)};
        Job job;
        SetColourDefinitions(job);
        for (const Stroke& stroke : m_strokes) {
            if (report.pens.empty() || report.pens.back().pen != stroke.pen)
                report.pens.push_back(
                    {stroke.pen, job.answers.gudtPens[stroke.pen].strColour, 0, 0, 0});
            PenUse& use = report.pens.back();
            for (const Segment& segment : stroke.segments)
                ++(segment.kind == SegmentKind::line ? use.lines
                   : stroke.isCircle()               ? use.circles
                                                     : use.arcs);
        }
    }

    const PrepareOptions& m_options;
    std::vector<Stroke> m_strokes;
    std::vector<Stroke> m_leftOut;
    FitOptions m_fit;
    ExactCircles m_exact;
    PreparedDrawing m_result;
};

} // namespace

PreparedDrawing prepareDrawing(SourceDrawing source, const PrepareOptions& options) {
    return Preparation(std::move(source), options).run();
}

std::string preparedName(std::string_view sourceName) {
    auto path = pathFromUtf8(sourceName);
    path.replace_filename(path.stem());
    path += "-torvik.plt";
    return utf8FromPath(path);
}

} // namespace torvik
