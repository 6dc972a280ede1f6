// SPDX-License-Identifier: MIT
#include "sweep/sweep.h"

#include "base/threads.h"
#include "sweep/shape.h"

#include <algorithm>
#include <cmath>
#include <mutex>
#include <numeric>
#include <optional>

namespace torvik::sweep {
namespace {

constexpr int bandRows = 64;
constexpr std::size_t cutsAtATime = 2048; // between two looks at the cancel flag

struct Rows {
    int first;
    int last;
};

Rows rowsWithin(const Grid& grid, const Cut& cut, Rows band) {
    const auto row = [&](double y) {
        return std::clamp((y - grid.lowY) / grid.cell, -1.0, grid.rows + 1.0);
    };
    return {std::max(band.first, static_cast<int>(std::floor(row(cut.lowY) - 1))),
            std::min(band.last, static_cast<int>(std::ceil(row(cut.highY) + 1)))};
}

// One band of rows, deepest cuts first: so each cell is written once, however many passes cross it.
// For each cell stands the next one at or behind it that is still open.
class Band {
public:
    Band(Field& field, Rows rows)
        : m_field(field), m_rows(rows), m_width(static_cast<std::size_t>(field.grid.columns) + 1),
          m_open(m_width * static_cast<std::size_t>(rows.last - rows.first + 1)) {
        for (std::size_t i = 0; i < m_open.size(); i += m_width)
            std::iota(m_open.begin() + static_cast<std::ptrdiff_t>(i),
                      m_open.begin() + static_cast<std::ptrdiff_t>(i + m_width), std::uint16_t{0});
    }

    void paint(const check::Move& move, const Cut& cut) {
        const Rows rows = rowsWithin(m_field.grid, cut, m_rows);
        const int first = std::max(firstWithin(cut.lowX) - 1, 0);
        const int last = std::min(lastWithin(cut.highX) + 1, m_field.grid.columns - 1);
        std::optional<Shape> shape; // made when there is something to cut
        Shape::Spans spans;
        for (int row = rows.first; row <= rows.last; ++row) {
            if (nextOpen(openCells(row), first) > last)
                continue;
            if (!shape)
                shape.emplace(move, cut.radius);
            const std::size_t count = shape->spansAt(m_field.grid.centreY(row), spans);
            for (std::size_t i = 0; i < count; ++i)
                fill(row, spans[i], cut);
        }
    }

private:
    // The first cell whose centre does not lie before a place, and the last not behind it. A cast
    // is quicker than a call to round.
    int firstWithin(double x) const {
        const double cells = (x - m_field.grid.lowX) / m_field.grid.cell - 0.5;
        const int columns = m_field.grid.columns;
        return columns - static_cast<int>(columns - std::clamp<double>(cells, 0, columns));
    }
    int lastWithin(double x) const {
        const double cells = (x - m_field.grid.lowX) / m_field.grid.cell - 0.5;
        return static_cast<int>(std::clamp<double>(cells, -1, m_field.grid.columns - 1) + 1) - 1;
    }

    std::uint16_t* openCells(int row) {
        return &m_open[m_width * static_cast<std::size_t>(row - m_rows.first)];
    }

    void fill(int row, Span span, const Cut& cut) {
        const int last = lastWithin(span.high);
        std::uint16_t* const open = openCells(row);
        const std::size_t start = m_field.at(0, row);
        for (int i = nextOpen(open, firstWithin(span.low)); i <= last; i = nextOpen(open, i + 1)) {
            open[i] = static_cast<std::uint16_t>(i + 1);
            const std::size_t cell = start + static_cast<std::size_t>(i);
            if (m_field.depths[cell] < cut.depth) {
                m_field.depths[cell] = cut.depth;
                m_field.moves[cell] = cut.move;
            }
        }
    }

    static int nextOpen(std::uint16_t* open, int i) {
        while (open[i] != i) {
            open[i] = open[open[i]]; // shortens the way for the next one
            i = open[i];
        }
        return i;
    }

    Field& m_field;
    Rows m_rows;
    std::size_t m_width;
    std::vector<std::uint16_t> m_open;
};

std::vector<Cut> deepestFirst(std::span<const Cut> cuts) {
    std::vector<Cut> sorted(cuts.begin(), cuts.end());
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Cut& a, const Cut& b) { return a.depth > b.depth; });
    return sorted;
}

// Hands the bands to the threads.
class Sweep {
public:
    Sweep(Field& field, const check::Moves& moves, std::span<const Cut> cuts,
          const Control& control)
        : m_field(field), m_moves(moves), m_cuts(deepestFirst(cuts)), m_control(control),
          m_bands((field.grid.rows + bandRows - 1) / bandRows) {}

    bool run() {
        inThreads(m_bands, std::min(m_control.threads, m_bands),
                  [this](int number) { sweepBand(number); });
        return !m_control.isCancelled();
    }

private:
    void sweepBand(int number) {
        const int first = number * bandRows;
        Band band(m_field, {first, std::min(first + bandRows, m_field.grid.rows) - 1});
        for (std::size_t i = 0; i < m_cuts.size(); i += cutsAtATime) {
            if (m_control.isCancelled())
                return;
            const std::size_t end = std::min(i + cutsAtATime, m_cuts.size());
            for (std::size_t k = i; k < end; ++k)
                band.paint(m_moves[m_cuts[k].move], m_cuts[k]);
            tell(end - i);
        }
    }

    void tell(std::size_t cuts) {
        if (!m_control.progress)
            return;
        const std::lock_guard lock(m_telling);
        m_done += static_cast<double>(cuts);
        m_control.progress(m_done / (static_cast<double>(m_cuts.size()) * m_bands));
    }

    Field& m_field;
    const check::Moves& m_moves;
    const std::vector<Cut> m_cuts;
    const Control& m_control;
    const int m_bands;
    std::mutex m_telling;
    double m_done = 0;
};

} // namespace

bool sweepOn(Field& field, const check::Moves& moves, std::span<const Cut> cuts,
             const Control& control) {
    return Sweep(field, moves, cuts, control).run();
}

void sweepPart(Field& field, const check::Move& part, const Cut& cut) {
    const Rows rows = rowsWithin(field.grid, cut, {0, field.grid.rows - 1});
    if (rows.first <= rows.last)
        Band(field, rows).paint(part, cut);
}

int rowsOf(const Grid& grid, const Cut& cut) {
    const Rows rows = rowsWithin(grid, cut, {0, grid.rows - 1});
    return std::max(0, rows.last - rows.first + 1);
}

} // namespace torvik::sweep
