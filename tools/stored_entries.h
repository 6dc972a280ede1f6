// SPDX-License-Identifier: MIT
// A numbered list as the registry holds it: a count, and entries whose names end in their place
// (Tool01, Tool02 ... Tool100). A count that cannot be right is told and not used.
#pragma once

#include "tools/registry.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace torvik {

// "Tool07" for the place 7.
std::string entryName(std::string_view kind, int place);

struct StoredEntries {
    std::vector<std::optional<std::string>> texts; // none where nothing is stored
    std::string fault;                             // of the count, empty for none
};

// The entries in the order of their places. Where the count is no number from 0 to 32767, or far
// more than is stored, the list ends with the last entry that is. Raises FileError.
StoredEntries readEntries(const RegistryReader& registry, std::string_view countName,
                          std::string_view kind);

} // namespace torvik
