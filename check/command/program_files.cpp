// SPDX-License-Identifier: MIT
#include "check/command/program_files.h"

#include "base/errors.h"
#include "base/files.h"
#include "check/opening_lines.h"

#include <algorithm>
#include <array>
#include <fstream>

namespace torvik::check {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t largestProgram = std::uintmax_t{64} << 20;

std::string inSmallLetters(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return text;
}

bool isNamedLikeProgram(const std::string& name) {
    const std::string small = inSmallLetters(name);
    return std::any_of(targets().begin(), targets().end(), [&](const Target& target) {
        if (!target.fileEnd.empty())
            return small.ends_with(target.fileEnd);
        const std::string start = inSmallLetters(std::string(target.fileStart));
        return small.size() > start.size() && small.starts_with(start) &&
               small.find_first_not_of("0123456789", start.size()) == small.npos;
    });
}

bool beginsLikeProgram(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::array<char, 32> bytes{};
    file.read(bytes.data(), bytes.size());
    const std::string_view start(bytes.data(), static_cast<std::size_t>(file.gcount()));
    const std::string_view line = start.substr(0, start.find('\r'));
    return std::any_of(targets().begin(), targets().end(), [&](const Target& target) {
        return isOpeningLine(target.openingLines.front(), line);
    });
}

} // namespace

std::vector<fs::path> programsOf(const fs::path& path) {
    std::error_code error;
    if (!fs::is_directory(path, error))
        return {path};
    std::vector<fs::path> programs;
    for (auto entry = fs::recursive_directory_iterator(path, error);
         !error && entry != fs::end(entry); entry.increment(error)) {
        std::error_code unknown;
        if (entry->is_regular_file(unknown) &&
            (isNamedLikeProgram(utf8FromPath(entry->path().filename())) ||
             beginsLikeProgram(entry->path())))
            programs.push_back(entry->path());
    }
    if (error)
        throw FileError(utf8FromPath(path), "the folder cannot be read: " + error.message());
    if (programs.empty())
        throw FileError(utf8FromPath(path), "the folder holds no program");
    std::sort(programs.begin(), programs.end());
    return programs;
}

ProgramBytes readProgramFile(const fs::path& path) {
    ProgramBytes bytes{readWholeFile(path, largestProgram), {}};
    fs::path beside = path;
    beside += ".txt";
    std::error_code unknown;
    if (fs::is_regular_file(beside, unknown))
        bytes.sideText = readWholeFile(beside, largestProgram);
    return bytes;
}

} // namespace torvik::check
