// SPDX-License-Identifier: MIT
// The open output: lines are gathered in a buffer and passed to a file (or any other sink) in
// large pieces. Lines end in CR LF.
#pragma once

#include "base/byte_sink.h"
#include "gcode/block_lines.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace torvik {

inline constexpr std::string_view lineEnd = "\r\n";

// How many lines end in the bytes.
std::int64_t lineEndsIn(std::string_view bytes);

class ProgramOutput {
public:
    explicit ProgramOutput(ByteSink& sink);

    // The text as it stands (bytes of the program's own encoding), with a line end or without.
    void WriteLine(std::string_view text, bool withLineEnd = true);
    // The text as a block: "N", the next block number (9999 is followed by 1), a blank, the text
    // and a line end.
    void CommandLine(std::string_view text);
    // The same for the lines from `first` up to `end`, which have their line ends.
    void writeBlocks(BlockLines& lines, std::uint32_t first, std::uint32_t end);
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
    std::int16_t nextNumber() const;
    void writeBlock(std::string_view line);
    void pass(std::string_view bytes);
    void passOn(std::string_view bytes);
    void use(const char* end) { m_used = static_cast<std::size_t>(end - m_buffer.get()); }

    ByteSink& m_sink;
    std::unique_ptr<char[]> m_buffer; // of m_size bytes, filled up to m_used
    std::size_t m_size;
    std::size_t m_used = 0;
    std::int16_t m_gintLineNumber = 0; // the last block number written, 1 to 9999
    bool m_failed = false;
};

} // namespace torvik
