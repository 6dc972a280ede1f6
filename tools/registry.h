// SPDX-License-Identifier: MIT
// Where the settings that the workshop's programs share are kept: named texts under one key. The
// Windows registry is one form of it, a settings file the other. Names are the same in any case.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace torvik {

class RegistryReader {
public:
    RegistryReader() = default;
    RegistryReader(const RegistryReader&) = delete;
    RegistryReader& operator=(const RegistryReader&) = delete;
    virtual ~RegistryReader() = default;

    // The longest text that is read, in bytes of its stored form; a longer one counts as missing.
    static constexpr std::size_t maxValueBytes = 79;

    // The value's text (UTF-8), or the default where it is missing or cannot be read.
    virtual std::string strRegistryValueGet(std::string_view name,
                                            std::string_view defaultText) const = 0;
};

class Registry : public RegistryReader {
public:
    // Writes the value, creating what is missing. A write that fails goes unnoticed.
    virtual void RegistryValuePut(std::string_view name, std::string_view data) = 0;

    // While one lives, writes may be kept back (reads see them); at its end they are all stored.
    class Batch {
    public:
        explicit Batch(Registry& registry) : m_registry(registry) { m_registry.beginBatch(); }
        ~Batch() { m_registry.endBatch(); }
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

    private:
        Registry& m_registry;
    };

protected:
    virtual void beginBatch() {}
    virtual void endBatch() {}
};

} // namespace torvik
