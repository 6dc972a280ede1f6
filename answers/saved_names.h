// SPDX-License-Identifier: MIT
// Names made from a drawing's path (UTF-8, with the separators of any system).
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace torvik {

// The name of the file with the drawing's answers: the drawing's name with its last three
// characters replaced by "plx", whatever they are.
std::string savedFileName(std::string_view plotFile);

// The file for answers that are not finished, beside the one with the drawing's answers.
std::filesystem::path unfinishedFile(const std::filesystem::path& savedFile);

// The name of part that the wizard proposes: the drawing's name without folder and extension.
std::string proposedPartName(std::string_view plotFile);

} // namespace torvik
