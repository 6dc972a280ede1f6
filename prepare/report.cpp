// SPDX-License-Identifier: MIT
#include "prepare/report.h"

#include "base/picture.h"
#include "job/hpgl_reader.h"
#include "prepare/prepare.h"
#include "prepare/source/instruction_table.h"

#include <algorithm>

namespace torvik {
namespace {

std::string amount(long count, std::string_view one) {
    return formatInteger(count) + " " + std::string(one) + (count == 1 ? "" : "s");
}

std::string mm(double value) {
    return formatFixed(value, 3) + " mm";
}

std::string change(const std::string& before, const std::string& after) {
    return before == after ? after : before + " -> " + after;
}

std::string counts(const std::map<std::string, long>& instructions) {
    std::string text;
    for (const auto& [name, count] : instructions)
        text += (text.empty() ? "" : ", ") + name + " " + formatInteger(count);
    return text;
}

class RowMaker {
public:
    explicit RowMaker(const PrepareReport& report) : m_report(report) {}

    std::vector<ReportRow> make() {
        addRead();
        addLost();
        addBeside();
        addDone();
        addPens();
        addSizes();
        return std::move(m_rows);
    }

private:
    void add(std::string what, std::string value) {
        m_rows.push_back({std::move(what), std::move(value)});
    }

    void addCount(const char* what, long count) {
        if (count > 0)
            add(what, formatInteger(count));
    }

    void addRead() {
        const SourceReport& source = m_report.source;
        std::map<std::string, long> read;
        std::map<std::string, long> idle;
        for (const auto& [name, count] : source.instructions) {
            const Instruction* const row =
                name.size() == 2 ? findInstruction({name[0], name[1]}) : nullptr;
            const bool isIdle = row != nullptr && row->perform == &PenPlotter::ignore;
            (isIdle ? idle : read)[name] = count;
        }
        add("Read", counts(read));
        if (!idle.empty())
            add("Without effect on lines", counts(idle));
        if (!source.unknown.empty())
            add("Unknown, passed over", counts(source.unknown));
        if (source.strayCharacters > 0)
            add("Characters passed over", formatInteger(source.strayCharacters));
        if (!source.selectedPen)
            add("Pen", "none is selected; everything is drawn by pen 1");
        else if (source.drewBeforePen)
            add("Pen", "what comes before the first pen is drawn by pen 1");
        if (source.guessedCorners)
            add("Size", "scaled without corners of its own; those of an A4 plotter are taken");
        for (const std::string& remark : source.remarks)
            add("Note", remark);
        addCount("Texts drawn", source.texts);
        addCount("Letters unknown, drawn as boxes", source.unknownLetters);
    }

    void addLost() {
        for (std::size_t i = 0; i < lossCount; ++i)
            if (m_report.source.losses[i] > 0)
                add("Lost: " + std::string(lossText(static_cast<Loss>(i))),
                    formatInteger(m_report.source.losses[i]));
        for (const auto& [reason, count] : m_report.source.leftOut)
            add("Lost: " + reason, formatInteger(count));
        if (m_report.dots > 0)
            add("Dots",
                formatInteger(m_report.dots) +
                    (m_report.dotsDrawn ? ", drawn as circles" : ", not drawn without a diameter"));
    }

    void addBeside() {
        const BesideReport& beside = m_report.beside;
        for (const auto& [pen, diameter] : beside.tools)
            add("Tool of pen " + formatInteger(pen), formatFixed(diameter, 2) + " mm");
        addCount("Outlines that a tool runs beside", beside.outlines);
        addCount("Open lines that stay on the line", beside.openLines);
        addCount("Places too narrow for the tool", beside.unreached);
        addCount("Tabs", beside.tabs);
        addCount("Outlines too short for their tabs", beside.withoutTabs);
        if (!beside.crossings.empty()) {
            const Point first = beside.crossings.front() * (1 / plotterUnitsPerMm);
            add("Outlines that cross", formatInteger(static_cast<long>(beside.crossings.size())) +
                                           ", the first at X " + formatFixed(first.x, 2) + " Y " +
                                           formatFixed(first.y, 2));
        }
    }

    void addDone() {
        const FitReport& fit = m_report.fit;
        addCount("Duplicates taken out", m_report.duplicates);
        addCount("Strokes joined", m_report.joined);
        addCount("Curves taken apart", fit.curves);
        addCount("Circles made of chords or arcs", fit.circles);
        addCount("Arcs made of chords", fit.arcs);
        if (fit.nearCircles > 0)
            add("Nearly circles", formatInteger(fit.nearCircles) + " (a tolerance of " +
                                      mm(nearTolerance(fit)) + " makes circles of them)");
        add("Largest deviation", mm(fit.largestDeviation / plotterUnitsPerMm));
        if (fit.largestBulge > 0)
            add("Largest bulge of an arc over its chords",
                mm(fit.largestBulge / plotterUnitsPerMm));
    }

    // Rounded up, with what roundings take of a tolerance.
    static double nearTolerance(const FitReport& fit) {
        constexpr double share = 0.97;
        return std::ceil(fit.nearCircleTolerance / plotterUnitsPerMm / share * 1000) / 1000;
    }

    void addPens() {
        for (const ColourUse& use : m_report.source.colours)
            add(use.colour.starts_with(layerMark) ? "Layer " + use.colour.substr(layerMark.size())
                                                  : "Colour " + use.colour,
                "pen " + formatInteger(use.pen) + ", " + amount(use.strokes, "stroke"));
        for (const PenUse& pen : m_report.pens)
            add("Pen " + formatInteger(pen.pen) + " " + pen.name,
                amount(pen.lines, "line") + ", " + amount(pen.arcs, "arc") + ", " +
                    amount(pen.circles, "circle"));
    }

    void addSizes() {
        const auto& [low, high] = m_report.extents;
        add("Extents", "X " + formatFixed(low.x, 3) + " to " + mm(high.x) + ", Y " +
                           formatFixed(low.y, 3) + " to " + mm(high.y));
        add("Elements", change(formatInteger(static_cast<long>(m_report.elementsBefore)),
                               formatInteger(static_cast<long>(m_report.elementsAfter))));
        add("Cut length", change(mm(m_report.cutBefore), mm(m_report.cutAfter)));
        add("Air length", change(mm(m_report.airBefore), mm(m_report.airAfter)));
    }

    const PrepareReport& m_report;
    std::vector<ReportRow> m_rows;
};

} // namespace

std::vector<ReportRow> reportRows(const PrepareReport& report) {
    return RowMaker(report).make();
}

std::string reportText(std::string_view name, const PrepareReport& report) {
    std::string text = "Drawing: " + std::string(name) + "\n";
    for (const ReportRow& row : reportRows(report))
        text += "  " + row.what + ": " + row.value + "\n";
    return text;
}

std::vector<ReportRow> lossRows(const PrepareReport& report) {
    std::vector<ReportRow> rows;
    const auto add = [&](std::string_view what, long count) {
        if (count > 0)
            rows.push_back({std::string(what), formatInteger(count)});
    };
    for (std::size_t i = 0; i < lossCount; ++i)
        add(lossText(static_cast<Loss>(i)), report.source.losses[i]);
    for (const auto& [reason, count] : report.source.leftOut)
        add(reason, count);
    if (!report.dotsDrawn)
        add("dots (not drawn without a diameter)", report.dots);
    for (const auto& [name, count] : report.source.unknown)
        add("unknown " + name, count);
    return rows;
}

std::string lossLine(const PrepareReport& report) {
    std::string line;
    for (const ReportRow& row : lossRows(report))
        line += (line.empty() ? "" : ", ") + row.what + ": " + row.value;
    return line;
}

} // namespace torvik
