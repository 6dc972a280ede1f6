// SPDX-License-Identifier: MIT
// What is said after a save to a drive that can be taken out.
#pragma once

#include <QString>

#include <filesystem>
#include <vector>

namespace torvik {

// Whether the stick that holds the saved files can be taken out now: their names are made sure of
// first. Empty where they stand on a drive that stays. Raises nothing.
QString takingOutText(const std::vector<std::filesystem::path>& saved);

} // namespace torvik
