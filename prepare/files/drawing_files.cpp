// SPDX-License-Identifier: MIT
#include "prepare/files/drawing_files.h"

#include "base/errors.h"
#include "base/files.h"
#include "prepare/svg/svg_source.h"

#include <algorithm>

namespace torvik {
namespace {

bool isPicture(std::string_view fileName) {
    constexpr std::string_view extension = ".svg";
    return fileName.size() >= extension.size() &&
           std::equal(extension.begin(), extension.end(), fileName.end() - extension.size(),
                      [](char a, char b) { return a == b || a == b - 'A' + 'a'; });
}

} // namespace

SourceDrawing readSource(std::string_view bytes, std::string_view fileName, double roundTurn,
                         const std::map<std::string, int>& colours) {
    if (isPicture(fileName))
        return readSvg(bytes, fileName, {colours});
    HpglSourceOptions options;
    options.roundTurn = roundTurn;
    return readHpgl(bytes, fileName, options);
}

void requireOtherFile(const std::filesystem::path& output, const std::filesystem::path& source) {
    std::error_code error;
    if (std::filesystem::equivalent(output, source, error))
        throw FileError(utf8FromPath(output), "the prepared drawing would replace its own source");
}

} // namespace torvik
