// SPDX-License-Identifier: MIT
#include "tools/registry.h"

namespace torvik {

std::string Registry::strRegistryValueGet(std::string_view name,
                                          std::string_view defaultText) const {
    const auto kept = m_kept.find(name);
    if (kept == m_kept.end())
        return storedValueGet(name, defaultText);
    return kept->second.size() <= maxValueBytes ? kept->second : std::string(defaultText);
}

std::optional<std::string> Registry::wholeText(std::string_view name) const {
    const auto kept = m_kept.find(name);
    return m_batch || kept == m_kept.end() ? storedText(name) : kept->second;
}

bool Registry::RegistryValuePut(std::string_view name, std::string_view data) {
    if (m_batch) {
        m_batch->emplace_back(name, data);
        return true;
    }
    return storeOrKeep({{std::string(name), std::string(data)}}, true);
}

bool Registry::storeOrKeep(const Values& values, bool mayStore) {
    const bool stored = mayStore && store(values);
    for (const auto& [name, data] : values) {
        if (stored)
            m_kept.erase(name);
        else
            m_kept[name] = data;
    }
    return stored;
}

bool Registry::beginBatch() {
    m_batch.emplace();
    return lock();
}

bool Registry::saveBatch(bool open) {
    return storeOrKeep(std::exchange(*m_batch, {}), open);
}

void Registry::endBatch() {
    unlock();
    m_batch.reset();
}

} // namespace torvik
