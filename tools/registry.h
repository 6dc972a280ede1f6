// SPDX-License-Identifier: MIT
// Where the settings that the workshop's programs share are kept: named texts under one key. The
// Windows registry is one form of it, a settings file the other. Names are the same in any case.
// What cannot be stored is kept for as long as the program runs, and never written later: another
// program may have stored something newer by then.
#pragma once

#include "tools/ini_text.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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
    // The value's text of any length, nothing where it is missing. Raises FileError where nobody
    // can tell what is stored.
    virtual std::optional<std::string> wholeText(std::string_view name) const = 0;
};

class Registry : public RegistryReader {
public:
    std::string strRegistryValueGet(std::string_view name,
                                    std::string_view defaultText) const final;
    std::optional<std::string> wholeText(std::string_view name) const final;

    // Stores the value, creating what is missing. False where it is only kept for this run.
    bool RegistryValuePut(std::string_view name, std::string_view data);

    // While one lives, the batches of other programs wait, wholeText tells what is stored, and the
    // values that are put are kept back for save().
    class Batch {
    public:
        explicit Batch(Registry& registry) : m_registry(registry), m_open(registry.beginBatch()) {}
        ~Batch() { m_registry.endBatch(); }
        Batch(const Batch&) = delete;
        Batch& operator=(const Batch&) = delete;

        // False where the others do not wait or nobody can tell what is stored.
        bool isOpen() const { return m_open; }
        // Stores all values or none. False where they are only kept for this run.
        bool save() { return m_registry.saveBatch(m_open); }

    private:
        Registry& m_registry;
        bool m_open;
    };

protected:
    using Values = std::vector<std::pair<std::string, std::string>>;

    // What is stored, as the two reading procedures tell it.
    virtual std::string storedValueGet(std::string_view name,
                                       std::string_view defaultText) const = 0;
    virtual std::optional<std::string> storedText(std::string_view name) const = 0;
    // Stores the values in their order; false where that fails.
    virtual bool store(const Values& values) = 0;
    // Makes the batches of other programs wait; false where they do not.
    virtual bool lock() { return true; }
    virtual void unlock() {}

private:
    bool beginBatch();
    bool saveBatch(bool open);
    void endBatch();
    bool storeOrKeep(const Values& values, bool mayStore);

    std::map<std::string, std::string, NameLess> m_kept;
    std::optional<Values> m_batch;
};

} // namespace torvik
