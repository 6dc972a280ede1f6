// SPDX-License-Identifier: MIT
// Where the bytes of something that is written go.
#pragma once

#include <string>
#include <string_view>

namespace torvik {

class ByteSink {
public:
    ByteSink() = default;
    ByteSink(const ByteSink&) = delete;
    ByteSink& operator=(const ByteSink&) = delete;
    virtual ~ByteSink() = default;

    // Raises FileError where the bytes cannot be written.
    virtual void write(std::string_view bytes) = 0;
};

class StringSink final : public ByteSink {
public:
    void write(std::string_view bytes) override { m_bytes += bytes; }
    const std::string& bytes() const { return m_bytes; }

private:
    std::string m_bytes;
};

} // namespace torvik
