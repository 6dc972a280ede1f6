// SPDX-License-Identifier: MIT
#include "answers/saved_names.h"

#include "base/text.h"

namespace torvik {

std::string savedFileName(std::string_view plotFile) {
    return replaceLastThree(fileNameOf(plotFile), "plx");
}

std::filesystem::path unfinishedFile(const std::filesystem::path& savedFile) {
    return std::filesystem::path(savedFile) += ".unfinished";
}

std::string proposedPartName(std::string_view plotFile) {
    const std::string_view name = fileNameOf(plotFile);
    const auto dot = name.rfind('.');
    const bool hasExtension = dot != std::string_view::npos && dot > 0;
    return std::string(hasExtension ? name.substr(0, dot) : name);
}

} // namespace torvik
