// SPDX-License-Identifier: MIT
#include "check/time/pace_settings.h"

#include "base/errors.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/user_folders.h"
#include "tools/ini_text.h"

#include <array>

namespace torvik::check {
namespace {

constexpr std::size_t largestFile = std::size_t{1} << 20;

struct Entry {
    std::string_view name;
    double Pace::*value;
    double least;
    double most;
};

constexpr std::array<Entry, 6> entries{{
    {"RapidXY", &Pace::rapid, 1, 100'000},
    {"RapidZ", &Pace::rapidZ, 1, 100'000},
    {"Acceleration", &Pace::acceleration, 1, 100'000},
    {"ToolChange", &Pace::toolChange, 0, 3600},
    {"SpindleStart", &Pace::spindleStart, 0, 3600},
    {"FeedCap", &Pace::feedCap, 1, 100'000},
}};

double numberOr(std::string_view text, const Entry& entry, double otherwise) {
    if (!isNumber(text))
        return otherwise;
    try {
        const double number = leadingNumber(text);
        return number >= entry.least && number <= entry.most ? number : otherwise;
    } catch (const RunTimeError&) { // too large for any number
        return otherwise;
    }
}

} // namespace

std::filesystem::path ownSettingsFile() {
    return userConfigFolder() / "Torvik" / "Torvik.ini";
}

Pace paceOf(const Target& target, std::string_view settings) {
    Pace pace = target.pace;
    const IniText section(settings, "Time-" + std::string(target.optionName));
    for (const Entry& entry : entries)
        if (const auto set = section.values().find(entry.name); set != section.values().end())
            pace.*entry.value = numberOr(set->second, entry, pace.*entry.value);
    return pace;
}

Pace paceOf(const Target& target) {
    try {
        return paceOf(target, readWholeFile(ownSettingsFile(), largestFile));
    } catch (const FileError&) {
        return target.pace;
    }
}

} // namespace torvik::check
