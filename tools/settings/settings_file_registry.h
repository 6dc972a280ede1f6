// SPDX-License-Identifier: MIT
// The shared settings as a file: section [Maskor] of an INI file, its entries named as the registry
// values. Saved all or nothing, under a lock that every program with the file takes; only the own
// changes are applied, so those of other programs stay. A write that cannot be made (no permission,
// a lock that a running program keeps) is dropped after two seconds at most. The file and its
// folder are made by the first write.
#pragma once

#include "tools/registry.h"

#include <QtCore/QSettings>

#include <filesystem>
#include <map>

namespace torvik {

class SettingsFileRegistry : public Registry {
public:
    explicit SettingsFileRegistry(const std::filesystem::path& file);

    // Sees what other programs have saved meanwhile.
    std::string strRegistryValueGet(std::string_view name,
                                    std::string_view defaultText) const override;
    // Outside a batch the value is on the disk when this returns.
    void RegistryValuePut(std::string_view name, std::string_view data) override;

protected:
    void beginBatch() override { ++m_batches; }
    void endBatch() override;

private:
    void save();
    bool canBeSaved() const;

    mutable QSettings m_settings;
    std::map<std::string, std::string, std::less<>> m_unsaved;
    int m_batches = 0;
};

} // namespace torvik
