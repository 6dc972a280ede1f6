// SPDX-License-Identifier: MIT
#include "gcode/program_output.h"

#include "base/picture.h"

#include <algorithm>
#include <array>
#include <bit>
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

char* BlockNumber::put(char* out, std::int16_t number) {
    if (number == m_number + 1 && m_number != m_lastOfTen) {
        m_characters += m_lastDigit;
    } else {
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
    m_number = number;
    if constexpr (std::endian::native == std::endian::little) {
        std::memcpy(out, &m_characters, maxSize);
    } else {
        for (std::size_t i = 0; i < maxSize; ++i)
            out[i] = static_cast<char>(m_characters >> (8 * i));
    }
    return out + m_size;
}

ProgramOutput::ProgramOutput(ByteSink& sink) : m_sink(sink), m_buffer(bufferBytes, '\0') {}

void ProgramOutput::WriteLine(std::string_view text, bool withLineEnd) {
    char* out = put(room(text.size() + lineEnd.size()), text);
    use(withLineEnd ? put(out, lineEnd) : out);
}

void ProgramOutput::CommandLine(std::string_view text) {
    writeBlock(text);
    WriteLine({});
}

void ProgramOutput::writeBlock(std::string_view line) {
    ++m_gintLineNumber;
    if (m_gintLineNumber > lastBlockNumber)
        m_gintLineNumber = 1;
    char* const out = room(BlockNumber::maxSize + line.size());
    use(put(m_blockNumber.put(out, m_gintLineNumber), line));
}

void ProgramOutput::flush() {
    const auto gathered = std::string_view(m_buffer).substr(0, m_used);
    m_used = 0;
    if (m_failed)
        return;
    m_failed = true;
    m_sink.write(gathered);
    m_failed = false;
}

char* ProgramOutput::room(std::size_t bytes) {
    if (m_buffer.size() - m_used < bytes) {
        flush();
        if (m_buffer.size() < bytes)
            m_buffer.resize(bytes);
    }
    return m_buffer.data() + m_used;
}

} // namespace torvik
