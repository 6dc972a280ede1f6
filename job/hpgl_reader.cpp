// SPDX-License-Identifier: MIT
#include "job/hpgl_reader.h"

#include "base/error_trap.h"
#include "base/errors.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/text.h"
#include "job/arc_geometry.h"
#include "job/job.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>

namespace torvik {
namespace {

float coordinate(std::string_view text) {
    return toSingle(leadingNumber(text) / plotterUnitsPerMm);
}

// The first three items of a list at commas; an item that is missing is empty.
std::array<std::string_view, 3> items(std::string_view list) {
    std::array<std::string_view, 3> result;
    for (auto& item : result) {
        const auto comma = std::min(list.find(','), list.size());
        item = list.substr(0, comma);
        list.remove_prefix(std::min(comma + 1, list.size()));
    }
    return result;
}

// Where the plotter stands while a drawing is read.
class Plotter {
public:
    Plotter(Job& job, Logger& logger) : m_job(job), m_logger(logger) {}

    bool stopped() const { return m_stopped; }

    void selectPen(std::string_view parameters) {
        const double number = leadingNumber(parameters);
        if (number <= 0)
            m_stopped = true;
        else
            m_pen = toInt16(number);
    }

    void move(std::string_view parameters) { readPoint(parameters, m_x, m_y); }

    void draw(std::string_view parameters) {
        Path path = started(straightLine);
        if (readPoint(parameters, path.sngEndX, path.sngEndY))
            append(path);
    }

    void drawArc(std::string_view parameters) {
        const auto [centreX, centreY, degrees] = items(parameters);
        const float sweep = toSingle(leadingNumber(degrees));
        Path path = started(sweep > 0 ? arcCounterClockwise : arcClockwise);
        path.sngCentreX = coordinate(centreX);
        path.sngCentreY = coordinate(centreY);
        GetEndPoint(path, sweep, m_logger);
        append(path);
    }

    void drawCircle(std::string_view parameters) {
        const float radius = coordinate(items(parameters)[0]);
        Path path = started(arcCounterClockwise);
        path.sngCentreX = m_x;
        path.sngCentreY = m_y;
        path.sngStartY = toSingle(double{m_y} + radius);
        GetEndPoint(path, 360, m_logger);
        append(path);
    }

private:
    // The first pair of a list of coordinates; false, and nothing read, where there is no comma.
    static bool readPoint(std::string_view parameters, float& x, float& y) {
        const auto comma = parameters.find(',');
        if (comma == std::string_view::npos)
            return false;
        x = coordinate(parameters.substr(0, comma));
        y = coordinate(parameters.substr(comma + 1));
        return true;
    }

    Path started(std::int16_t type) const {
        Path path;
        path.intType = type;
        path.intPen = m_pen;
        path.sngStartX = m_x;
        path.sngStartY = m_y;
        return path;
    }

    void append(const Path& path) {
        if (m_pen < 1 || m_pen > penCount)
            throw RunTimeError("pen " + std::to_string(m_pen) +
                               " draws here, but a drawing may use the pens 1 to 8 only");
        if (m_job.drawing.gintPathCount == std::numeric_limits<std::int16_t>::max())
            throw RunTimeError("the drawing has more than 32767 lines, arcs and circles");
        m_job.drawing.gudtPaths.append(path);
        ++m_job.drawing.gintPathCount;
        m_x = path.sngEndX;
        m_y = path.sngEndY;
    }

    Job& m_job;
    Logger& m_logger;
    std::int16_t m_pen = 0;
    float m_x = 0;
    float m_y = 0;
    bool m_stopped = false;
};

struct Instruction {
    std::array<char, 2> mnemonic;
    void (Plotter::*perform)(std::string_view parameters);
};

// The whole language: pen select (0 or none ends the drawing), move, draw a line, draw an arc
// about a centre by a sweep, draw a circle about the current point.
constexpr std::array<Instruction, 5> instructions{{
    {{'P', 'D'}, &Plotter::draw},
    {{'P', 'U'}, &Plotter::move},
    {{'A', 'A'}, &Plotter::drawArc},
    {{'C', 'I'}, &Plotter::drawCircle},
    {{'S', 'P'}, &Plotter::selectPen},
}};

void performPart(Plotter& plotter, std::string_view part) {
    if (part.size() < 2)
        return;
    const std::array<char, 2> mnemonic{part[0], part[1]};
    for (const Instruction& instruction : instructions) {
        if (instruction.mnemonic == mnemonic) {
            (plotter.*instruction.perform)(part.substr(2));
            return;
        }
    }
}

// One line of the file; its blanks become commas in place.
void performLine(Plotter& plotter, std::span<char> line) {
    std::replace(line.begin(), line.end(), ' ', ',');
    std::string_view rest(line.data(), line.size());
    while (!rest.empty() && !plotter.stopped()) {
        const auto end = std::min(rest.find(';'), rest.size());
        performPart(plotter, rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
}

std::span<char> trimmed(std::span<char> line) {
    const std::string_view text = trimBlanks({line.data(), line.size()});
    return text.empty()
               ? std::span<char>{}
               : line.subspan(static_cast<std::size_t>(text.data() - line.data()), text.size());
}

// The lines of a text, which end at CR LF, LF or CR alone. Where the next CR and the next LF stand
// is looked up once for all the lines before them.
class LineSplitter {
public:
    explicit LineSplitter(std::span<char> text) : m_text(text) {}

    bool atEnd() const { return m_start >= m_text.size(); }

    std::span<char> next() {
        const auto end = std::min(seek('\n', m_lineFeed), seek('\r', m_return));
        const auto line = m_text.subspan(m_start, end - m_start);
        const bool pair = end + 1 == m_lineFeed && end == m_return;
        m_start = end + (pair ? 2 : 1);
        return line;
    }

private:
    std::size_t seek(char c, std::size_t& place) const {
        if (place < m_start || place == unknown)
            place = std::min(std::string_view(m_text.data(), m_text.size()).find(c, m_start),
                             m_text.size());
        return place;
    }

    static constexpr std::size_t unknown = std::string_view::npos;

    std::span<char> m_text;
    std::size_t m_start = 0;
    std::size_t m_lineFeed = unknown;
    std::size_t m_return = unknown;
};

} // namespace

void readInstructions(Job& job, std::string bytes, std::string_view fileName, Logger& logger) {
    constexpr long shortElement = 5; // "PD1,;", few are shorter
    job.drawing.gudtPaths.reserve(std::min(static_cast<long>(bytes.size()) / shortElement,
                                           long{std::numeric_limits<std::int16_t>::max()}));
    Plotter plotter(job, logger);
    LineSplitter lines(bytes);
    for (long number = 1; !lines.atEnd() && !plotter.stopped(); ++number) {
        try {
            performLine(plotter, trimmed(lines.next()));
        } catch (const RunTimeError& error) {
            throw FileError(std::string(fileName), error.what(), number);
        }
    }
}

bool blnGetCommands(Job& job, const std::filesystem::path& file, Logger& logger) {
    const bool read = withErrorTrap(logger, {"blnGetCommands", "modHpgl"}, [&] {
        job.output.gblnUnsaved = false;
        ClearData(job);
        job.drawing.gstrPlotFile = utf8FromPath(file);
        readInstructions(job, readWholeFile(file, maxDrawingBytes), job.drawing.gstrPlotFile,
                         logger);
    });
    if (read) {
        job.output.gblnUnsaved = true;
    } else {
        ClearData(job);
        job.drawing.gstrPlotFile.clear();
    }
    return read;
}

} // namespace torvik
