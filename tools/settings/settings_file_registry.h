// SPDX-License-Identifier: MIT
// The shared settings as a file: section [Maskor] of an INI file, its entries named as the registry
// values. Saved all or nothing, under a lock that every program with the file takes; only the own
// changes are applied, so those of other programs stay. A write that cannot be made (no permission,
// a lock that a running program keeps) is given up after two seconds at most. The file and its
// folder are made by the first write.
#pragma once

#include "tools/registry.h"
#include "tools/settings/settings_turn.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QLockFile>

#include <filesystem>
#include <optional>

namespace torvik {

class SettingsFileRegistry : public Registry {
public:
    explicit SettingsFileRegistry(std::filesystem::path file);

protected:
    // Both see what other programs have saved meanwhile.
    std::string storedValueGet(std::string_view name, std::string_view defaultText) const override;
    std::optional<std::string> storedText(std::string_view name) const override;
    bool store(const Values& values) override;
    bool lock() override;
    void unlock() override;

private:
    // Tells one state of the file from another.
    struct Stamp {
        std::filesystem::file_time_type time;
        std::uintmax_t size = 0;
        bool operator==(const Stamp&) const = default;
    };

    Stamp stamp() const;
    void read() const;
    bool takeTurn();
    bool storeInTurn(const Values& values) const;

    std::filesystem::path m_file;
    SettingsTurn m_turn;
    QLockFile m_batchLock;
    QDeadlineTimer m_deadline; // of the turn
    bool m_inBatch = false;
    mutable std::optional<IniText> m_text;
    mutable Stamp m_stamp; // of m_text
};

} // namespace torvik
