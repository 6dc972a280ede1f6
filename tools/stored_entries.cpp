// SPDX-License-Identifier: MIT
#include "tools/stored_entries.h"

#include "base/errors.h"
#include "base/numbers.h"
#include "base/picture.h"

#include <algorithm>
#include <limits>

namespace torvik {
namespace {

constexpr int mostEntries = std::numeric_limits<std::int16_t>::max();
// A count that leads further behind the last entry than this counts nothing.
constexpr int mostMissing = 20;

// Nothing for a number below 0 or too large.
std::optional<int> countIn(const std::string& text) {
    try {
        const int count = toInt16(leadingNumber(text));
        return count >= 0 ? std::optional(count) : std::nullopt;
    } catch (const Overflow&) {
        return std::nullopt;
    }
}

} // namespace

std::string entryName(std::string_view kind, int place) {
    return std::string(kind) + formatInteger(place, 2);
}

StoredEntries readEntries(const RegistryReader& registry, std::string_view countName,
                          std::string_view kind) {
    const std::string countText = registry.wholeText(countName).value_or("0");
    const std::optional<int> count = countIn(countText);
    StoredEntries entries;
    std::size_t last = 0;
    for (int place = 1; place <= count.value_or(mostEntries); ++place) {
        entries.texts.push_back(registry.wholeText(entryName(kind, place)));
        if (entries.texts.back())
            last = entries.texts.size();
    }
    if (!count || entries.texts.size() > last + mostMissing) {
        entries.texts.resize(last);
        entries.fault =
            std::string(countName) + " is \"" + countText +
            "\", which cannot be right; the list is used up to its last entry, number " +
            formatInteger(static_cast<long>(last));
    }
    return entries;
}

} // namespace torvik
