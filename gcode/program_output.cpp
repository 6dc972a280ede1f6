// SPDX-License-Identifier: MIT
#include "gcode/program_output.h"

#include "base/picture.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace torvik {
namespace {

constexpr std::size_t bufferBytes = std::size_t{1} << 18;
constexpr std::size_t gatheredBytes = bufferBytes / 16;
constexpr std::int16_t firstOfFourDigits = 1000;
constexpr std::int16_t lastBlockNumber = 9999;

char* put(char* out, std::string_view text) {
    if (!text.empty()) // an empty view may point nowhere
        std::memcpy(out, text.data(), text.size());
    return out + text.size();
}

} // namespace

std::int64_t lineEndsIn(std::string_view bytes) {
    return std::count(bytes.begin(), bytes.end(), lineEnd.back());
}

ProgramOutput::ProgramOutput(ByteSink& sink)
    : m_sink(sink), m_buffer(std::make_unique_for_overwrite<char[]>(bufferBytes)),
      m_size(bufferBytes) {}

void ProgramOutput::WriteLine(std::string_view text, bool withLineEnd) {
    char* out = put(room(text.size() + lineEnd.size()), text);
    use(withLineEnd ? put(out, lineEnd) : out);
}

void ProgramOutput::CommandLine(std::string_view text) {
    writeBlock(text);
    WriteLine({});
}

std::int16_t ProgramOutput::nextNumber() const {
    return m_gintLineNumber == lastBlockNumber ? std::int16_t{1}
                                               : static_cast<std::int16_t>(m_gintLineNumber + 1);
}

void ProgramOutput::writeBlock(std::string_view line) {
    constexpr std::size_t numberBytes = 6; // "N9999 "
    m_gintLineNumber = nextNumber();
    char* out = room(numberBytes + line.size());
    *out++ = 'N';
    out = putInteger(out, m_gintLineNumber);
    *out++ = ' ';
    use(put(out, line));
}

void ProgramOutput::writeBlocks(BlockLines& lines, std::uint32_t first, std::uint32_t end) {
    while (first < end) {
        const std::int16_t next = nextNumber();
        if (next < firstOfFourDigits) {
            writeBlock(lines.line(first++));
            continue;
        }
        const auto untilLast = static_cast<std::uint32_t>(lastBlockNumber - next + 1);
        const std::uint32_t stop = first + std::min(end - first, untilLast);
        pass(lines.blocks(first, stop, next));
        m_gintLineNumber = static_cast<std::int16_t>(next + static_cast<int>(stop - first) - 1);
        first = stop;
    }
}

// Few bytes are gathered, many go on as they are.
void ProgramOutput::pass(std::string_view bytes) {
    if (bytes.size() <= gatheredBytes) {
        use(put(room(bytes.size()), bytes));
        return;
    }
    flush();
    passOn(bytes);
}

void ProgramOutput::flush() {
    passOn({m_buffer.get(), std::exchange(m_used, 0)});
}

void ProgramOutput::passOn(std::string_view bytes) {
    if (m_failed || bytes.empty())
        return;
    m_failed = true;
    m_sink.write(bytes);
    m_failed = false;
}

void ProgramOutput::makeRoom(std::size_t bytes) {
    flush();
    if (m_size < bytes) {
        m_buffer = std::make_unique_for_overwrite<char[]>(bytes);
        m_size = bytes;
    }
}

} // namespace torvik
