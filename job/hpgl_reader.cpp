// SPDX-License-Identifier: MIT
#include "job/hpgl_reader.h"

#include "base/error_trap.h"
#include "base/errors.h"
#include "base/files.h"
#include "base/text.h"
#include "job/hpgl_plotter.h"
#include "job/job.h"

#include <algorithm>
#include <limits>
#include <span>

namespace torvik {
namespace {

void performLine(HpglPlotter& plotter, std::string_view rest) {
    while (!rest.empty()) {
        const auto end = std::min(rest.find(';'), rest.size());
        plotter.perform(rest.substr(0, end));
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
}

// Blanks at both ends are no part of a line, those inside become commas in place.
std::string_view withoutBlanks(std::span<char> line) {
    const std::string_view text = trimBlanks({line.data(), line.size()});
    if (text.empty())
        return {};
    const auto kept =
        line.subspan(static_cast<std::size_t>(text.data() - line.data()), text.size());
    std::replace(kept.begin(), kept.end(), ' ', ',');
    return text;
}

// The lines of a text, which end at CR LF, LF or CR alone, without their blanks. Where the next CR,
// the next LF and the next blank stand is looked up once for all the lines before them.
class LineSplitter {
public:
    explicit LineSplitter(std::span<char> text) : m_text(text) {}

    bool atEnd() const { return m_start >= m_text.size(); }

    std::string_view next() {
        const auto end = std::min(seek('\n', m_lineFeed), seek('\r', m_return));
        const auto line = m_text.subspan(m_start, end - m_start);
        const bool pair = end + 1 == m_lineFeed && end == m_return;
        const bool hasBlank = seek(' ', m_blank) < end;
        m_start = end + (pair ? 2 : 1);
        return hasBlank ? withoutBlanks(line) : std::string_view(line.data(), line.size());
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
    std::size_t m_blank = unknown;
};

} // namespace

void requireSingleBytes(std::string_view bytes, const std::string& fileName) {
    const auto isZero = [&](std::size_t i) { return bytes[i] == '\0'; };
    const bool hasMark = bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF");
    if (hasMark || (bytes.size() >= 4 && isZero(0) != isZero(1) && isZero(2) != isZero(3)))
        throw FileError(fileName, "this text is in UTF-16; please save the drawing as plain text");
}

void readInstructions(Drawing& drawing, std::string bytes, std::string_view fileName,
                      Logger& logger) {
    constexpr long shortElement = 5; // "PD1,;", few are shorter
    drawing.gudtPaths.reserve(std::min(static_cast<long>(bytes.size()) / shortElement,
                                       long{std::numeric_limits<std::int16_t>::max()}));
    HpglPlotter plotter(drawing, logger);
    LineSplitter lines(bytes);
    for (long number = 1; !lines.atEnd(); ++number) {
        try {
            performLine(plotter, lines.next());
        } catch (const RunTimeError& error) {
            throw FileError(std::string(fileName), error.what(), number);
        }
    }
    drawing.reading = plotter.reading();
}

bool isPlainDrawing(std::string bytes) {
    Drawing drawing;
    Logger logger;
    HpglPlotter plotter(drawing, logger);
    LineSplitter lines(bytes);
    try {
        while (!lines.atEnd() && plotter.reading().isPlain)
            performLine(plotter, lines.next());
    } catch (const RunTimeError&) {
        return false;
    }
    return plotter.reading().isPlain;
}

bool blnGetCommands(Job& job, const std::filesystem::path& file, Logger& logger,
                    const std::function<void(std::string_view bytes)>& seen) {
    const bool read = withErrorTrap(logger, {"blnGetCommands", "modHpgl"}, [&] {
        ClearData(job);
        job.drawing.gstrPlotFile = utf8FromPath(file);
        std::string bytes = readWholeFile(file, maxDrawingBytes);
        requireSingleBytes(bytes, job.drawing.gstrPlotFile);
        if (seen)
            seen(bytes);
        namingFile(job.drawing.gstrPlotFile, [&] {
            readInstructions(job.drawing, std::move(bytes), utf8FromPath(file), logger);
        });
    });
    if (read)
        job.output.gblnUnsaved = true;
    else
        ClearData(job);
    return read;
}

} // namespace torvik
