// SPDX-License-Identifier: MIT
#include "tools/settings/open_registry.h"

#include "tools/settings/settings_file_registry.h"
#include "tools/settings_file_reader.h"
#ifdef _WIN32
#include "tools/windows_registry.h"
#endif

namespace torvik {

std::unique_ptr<Registry> openRegistry() {
#ifdef _WIN32
    return std::make_unique<WindowsRegistry>();
#else
    return openRegistry(userSettingsFile());
#endif
}

std::unique_ptr<Registry> openRegistry(const std::filesystem::path& settingsFile) {
    return std::make_unique<SettingsFileRegistry>(settingsFile);
}

} // namespace torvik
