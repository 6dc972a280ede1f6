// SPDX-License-Identifier: MIT
#include "convert/show.h"

#include "base/picture.h"
#include "job/extents.h"
#include "job/job.h"
#include "job/pens.h"

namespace torvik {
namespace {

struct Counts {
    long lines = 0;
    long arcs = 0;
    long circles = 0;
};

// The elements of a pen, or of the whole drawing for pen 0.
Counts countElements(const Job& job, std::int16_t pen) {
    Counts counts;
    for (const Path& path : job.drawing.gudtPaths) {
        if (pen != 0 && path.intPen != pen)
            continue;
        if (path.intType == straightLine)
            ++counts.lines;
        else if (isClosedCircle(path))
            ++counts.circles;
        else
            ++counts.arcs;
    }
    return counts;
}

std::string amount(long count, const char* one) {
    return formatInteger(count) + " " + one + (count == 1 ? "" : "s");
}

std::string countsText(const Counts& counts) {
    return amount(counts.lines, "line") + ", " + amount(counts.arcs, "arc") + ", " +
           amount(counts.circles, "circle");
}

std::string range(double low, double high) {
    return formatFixed(low, 3) + " to " + formatFixed(high, 3) + " mm";
}

std::string extentsText(const Job& job) {
    const Extents extents = extentsOf(job.drawing);
    if (extents.empty())
        return "Extents: none\n";
    return "Extents: X " + range(extents.minX, extents.maxX) + ", Y " +
           range(extents.minY, extents.maxY) + "\n";
}

std::string penText(const Job& job, std::int16_t number) {
    const Pen& pen = job.answers.gudtPens[number];
    std::string text = "Pen " + formatInteger(number) + " " + pen.strColour + ": " +
                       countsText(countElements(job, number)) + "\n";
    if (pen.intRadiusCount == 0)
        return text;
    text += "  Circle sizes:";
    for (long k = 1; k <= pen.intRadiusCount; ++k)
        text += (k == 1 ? " " : ", ") + formatFixed(2.0 * pen.sngRadii[k], 2) + " mm";
    return text + "\n";
}

// A name that a shell takes for one word.
std::string asArgument(const std::string& name) {
    return name.find(' ') == std::string::npos ? name : "\"" + name + "\"";
}

std::string skippedText(const Drawing& drawing) {
    const Reading& reading = drawing.reading;
    const long all = reading.lost + reading.harmless;
    std::string text = "Skipped: " + amount(all, "instruction");
    if (reading.lost > 0)
        text += ", " + formatInteger(reading.lost) + " with effect on the drawing; " +
                "torvik-prepare " + asArgument(drawing.gstrPlotFile) +
                " makes one that is read completely";
    else if (all > 0)
        text += ", none with effect on the drawing";
    return text + "\n";
}

} // namespace

std::string describeDrawing(const Job& job) {
    std::string text = "Drawing: " + job.drawing.gstrPlotFile + "\n" +
                       "Elements: " + countsText(countElements(job, 0)) + "\n" + extentsText(job);
    for (std::int16_t pen = 1; pen <= penCount; ++pen)
        if (job.answers.gudtPens[pen].blnUsed)
            text += penText(job, pen);
    return text + skippedText(job.drawing);
}

} // namespace torvik
