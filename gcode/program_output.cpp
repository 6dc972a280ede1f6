// SPDX-License-Identifier: MIT
#include "gcode/program_output.h"

#include "base/picture.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace torvik {
namespace {

constexpr std::size_t bufferBytes = std::size_t{1} << 18;
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

void BlockNumber::format(std::int16_t number) {
    std::array<char, maxSize> text{'N'};
    char* const end = putInteger(text.data() + 1, number);
    *end = ' ';
    m_size = static_cast<std::size_t>(end + 1 - text.data());
    m_characters = 0;
    for (std::size_t i = 0; i < m_size; ++i)
        m_characters |= std::uint64_t{static_cast<unsigned char>(text[i])} << (8 * i);
    m_lastDigit = std::uint64_t{1} << (8 * (m_size - 2));
    m_lastOfTen = number - number % 10 + 9;
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

char* ProgramOutput::putNumber(char* out) {
    if (m_gintLineNumber == lastBlockNumber)
        m_gintLineNumber = 0;
    ++m_gintLineNumber;
    return m_blockNumber.put(out, m_gintLineNumber);
}

void ProgramOutput::writeBlock(std::string_view line) {
    use(put(putNumber(room(BlockNumber::maxSize + line.size())), line));
}

void ProgramOutput::writeBlock(PaddedLine line) {
    constexpr std::size_t piece = PaddedLine::padding;
    char* const out = putNumber(room(BlockNumber::maxSize + line.size + piece));
    for (std::size_t at = 0; at < line.size; at += piece)
        std::memcpy(out + at, line.text + at, piece);
    use(out + line.size);
}

void ProgramOutput::flush() {
    const auto gathered = std::string_view(m_buffer.get(), m_used);
    m_used = 0;
    if (m_failed)
        return;
    m_failed = true;
    m_sink.write(gathered);
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
