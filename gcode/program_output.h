// SPDX-License-Identifier: MIT
// The open output: lines are gathered in a buffer and passed to a file (or any other sink) in
// large pieces. Lines end in CR LF.
#pragma once

#include "base/byte_sink.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>

namespace torvik {

inline constexpr std::string_view lineEnd = "\r\n";

// How many lines end in the bytes.
std::int64_t lineEndsIn(std::string_view bytes);

// "N", a block number and a blank as text; the number after the last one is counted up in place.
class BlockNumber {
public:
    // Writes maxSize bytes and returns the end of those that count.
    static constexpr std::size_t maxSize = 8; // "N9999 " has six
    char* put(char* out, std::int16_t number) {
        if (number == m_number + 1 && m_number != m_lastOfTen)
            m_characters += m_lastDigit;
        else
            format(number);
        m_number = number;
        if constexpr (std::endian::native == std::endian::little) {
            std::memcpy(out, &m_characters, maxSize);
        } else {
            for (std::size_t i = 0; i < maxSize; ++i)
                out[i] = static_cast<char>(m_characters >> (8 * i));
        }
        return out + m_size;
    }

private:
    void format(std::int16_t number);

    // The characters in one word, the first in its lowest byte: a program has a number a line.
    std::uint64_t m_characters = 0;
    std::uint64_t m_lastDigit = 0; // one, at the place of the last digit
    std::size_t m_size = 0;
    int m_number = -2;
    int m_lastOfTen = -2; // the number that ends in 9
};

// A line with its end that may be read, not used, up to `padding` bytes behind that: it is copied
// in pieces of one size, which is quicker than to ask for the size of each.
struct PaddedLine {
    static constexpr std::size_t padding = 32;

    const char* text;
    std::size_t size;
};

class ProgramOutput {
public:
    explicit ProgramOutput(ByteSink& sink);

    // The text as it stands (bytes of the program's own encoding), with a line end or without.
    void WriteLine(std::string_view text, bool withLineEnd = true);
    // The text as a block: "N", the next block number (9999 is followed by 1), a blank, the text
    // and a line end.
    void CommandLine(std::string_view text);
    // The same for a text that ends in its line end already.
    void writeBlock(std::string_view line);
    void writeBlock(PaddedLine line);
    // Passes what is gathered on. Whatever is not flushed is lost with the object. After a failed
    // write there is nothing more to pass on: the failure was raised once.
    void flush();
    // A write has failed, so the output is not whole.
    bool failed() const { return m_failed; }

private:
    // Where the next bytes go, with room for so many.
    char* room(std::size_t bytes) {
        if (m_size - m_used < bytes)
            makeRoom(bytes);
        return m_buffer.get() + m_used;
    }
    void makeRoom(std::size_t bytes);
    char* putNumber(char* out);
    void use(const char* end) { m_used = static_cast<std::size_t>(end - m_buffer.get()); }

    ByteSink& m_sink;
    std::unique_ptr<char[]> m_buffer; // of m_size bytes, filled up to m_used
    std::size_t m_size;
    std::size_t m_used = 0;
    std::int16_t m_gintLineNumber = 0; // the last block number written, 1 to 9999
    BlockNumber m_blockNumber;
    bool m_failed = false;
};

} // namespace torvik
