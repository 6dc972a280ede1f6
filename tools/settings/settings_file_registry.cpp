// SPDX-License-Identifier: MIT
#include "tools/settings/settings_file_registry.h"

#include "base/errors.h"
#include "base/files.h"
#include "base/stop_signals.h"
#include "tools/settings/settings_format.h"
#include "tools/settings/settings_lock.h"
#include "tools/settings_file_reader.h"

#include <chrono>

namespace torvik {
namespace {

using namespace std::chrono_literals;

// A batch waits for the lock of a save, so it may last longer.
constexpr auto staleBatchAge = 4000ms;

QString toQt(const std::filesystem::path& path) {
    return QString::fromStdString(utf8FromPath(path));
}

} // namespace

SettingsFileRegistry::SettingsFileRegistry(std::filesystem::path file)
    : m_file(std::move(file)), m_turn(toQt(m_file)),
      m_batchLock(toQt(m_file) + QStringLiteral(".batch.lock")) {
    m_batchLock.setStaleLockTime(staleBatchAge);
}

SettingsFileRegistry::Stamp SettingsFileRegistry::stamp() const {
    std::error_code error;
    Stamp now;
    if (std::filesystem::status(m_file, error).type() == std::filesystem::file_type::not_found)
        return now;
    if (!error)
        now.time = std::filesystem::last_write_time(m_file, error);
    if (!error)
        now.size = std::filesystem::file_size(m_file, error);
    if (error)
        throw FileError(utf8FromPath(m_file), "the file cannot be read: " + error.message());
    return now;
}

void SettingsFileRegistry::read() const {
    const Stamp now = stamp();
    m_text.reset();
    m_text.emplace(settingsText(m_file), settingsSection);
    m_stamp = now;
}

std::optional<std::string> SettingsFileRegistry::storedText(std::string_view name) const {
    if (!m_text || (!m_inBatch && stamp() != m_stamp))
        read();
    const auto value = m_text->values().find(name);
    return value != m_text->values().end() ? std::optional(value->second) : std::nullopt;
}

std::string SettingsFileRegistry::storedValueGet(std::string_view name,
                                                 std::string_view defaultText) const {
    try {
        const auto text = storedText(name);
        return text && text->size() <= maxValueBytes ? *text : std::string(defaultText);
    } catch (const FileError&) {
        return std::string(defaultText);
    }
}

bool SettingsFileRegistry::store(const Values& values) {
    try {
        makeFolder(m_file.parent_path());
    } catch (const FileError&) {
        return false;
    }
    if (m_inBatch)
        return storeInTurn(values);
    const bool stored = takeTurn() && storeInTurn(values);
    m_turn.end();
    return stored;
}

bool SettingsFileRegistry::takeTurn() {
    m_deadline = settingsDeadline();
    return m_turn.take(m_deadline);
}

bool SettingsFileRegistry::storeInTurn(const Values& values) const {
    if (!isSettingsLockFree(toQt(m_file), m_deadline))
        return false;
    const StopWaits untilItIsSaved;
    return saveSettings(toQt(m_file), values);
}

bool SettingsFileRegistry::lock() {
    try {
        makeFolder(m_file.parent_path());
        if (!takeTurn() || !takeSettingsLock(m_batchLock, m_deadline))
            return false;
        read();
        m_inBatch = true;
    } catch (const FileError&) {
        m_text.reset();
    }
    return m_inBatch;
}

void SettingsFileRegistry::unlock() {
    m_inBatch = false;
    m_batchLock.unlock();
    m_turn.end();
}

} // namespace torvik
