// SPDX-License-Identifier: MIT
#include "base/logger.h"

#include "base/numbers.h"
#include "base/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <ctime>
#include <fstream>
#include <string>

namespace torvik {
namespace {

constexpr std::uintmax_t largestLog = 1'000'000; // bytes

bool isPowerOfTen(long count) {
    while (count > 1 && count % 10 == 0)
        count /= 10;
    return count == 1;
}

std::string now() {
    const std::time_t seconds = std::time(nullptr);
    std::array<char, 32> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", std::localtime(&seconds));
    return text.data();
}

std::string location(std::string_view procedure, std::string_view module) {
    std::string text(procedure);
    return text.append(" (").append(module).append(")");
}

} // namespace

LogSwitches LogSwitches::fromTexts(std::string_view errors, std::string_view trace,
                                   std::string_view info, std::string_view exclude) {
    const auto isOn = [](std::string_view text, bool unset) {
        return text.empty() ? unset : leadingNumber(text) != 0;
    };
    LogSwitches switches;
    switches.errors = isOn(errors, switches.errors);
    switches.trace = isOn(trace, switches.trace);
    switches.info = isOn(info, switches.info);
    while (!exclude.empty()) {
        const auto comma = std::min(exclude.find(','), exclude.size());
        const std::string_view name = trimBlanks(exclude.substr(0, comma));
        exclude.remove_prefix(std::min(comma + 1, exclude.size()));
        if (!name.empty())
            switches.exclude.emplace_back(name);
    }
    return switches;
}

Logger::Logger(std::filesystem::path logFile, Report report)
    : m_logFile(std::move(logFile)), m_report(std::move(report)) {}

std::string ErrorReport::message() const {
    // The cause keeps its first letter: it may be that of a file's name.
    std::string text = "An error has occurred in " + location(procedure, module) + ":\n";
    text += cause;
    if (text.back() != '.' && !cause.empty())
        text += '.';
    return text;
}

void Logger::reportError(std::string_view procedure, std::string_view module,
                         std::string_view cause, bool isUnreadable) {
    logError(procedure, module, cause);
    if (m_report)
        m_report({procedure, module, cause, isUnreadable});
}

void Logger::logError(std::string_view procedure, std::string_view module, std::string_view cause) {
    if (m_switches.errors)
        append("error", procedure, module, cause);
}

void Logger::trace(std::string_view procedure, std::string_view module) {
    if (m_switches.trace && !excluded(procedure, module))
        append("trace", procedure, module, "");
}

void Logger::info(std::string_view procedure, std::string_view module, std::string_view text) {
    if (m_switches.info && !excluded(procedure, module))
        append("info", procedure, module, text);
}

bool Logger::excluded(std::string_view procedure, std::string_view module) const {
    return std::any_of(
        m_switches.exclude.begin(), m_switches.exclude.end(),
        [&](const std::string& name) { return name == procedure || name == module; });
}

long Logger::countOf(std::string_view message) {
    m_lastCount = message == m_lastMessage ? m_lastCount + 1 : 1;
    m_lastMessage = message;
    return m_lastCount;
}

void Logger::append(std::string_view kind, std::string_view procedure, std::string_view module,
                    std::string_view text) {
    if (m_logFile.empty())
        return;
    std::string line = std::string(kind) + " " + location(procedure, module);
    if (!text.empty())
        line.append(": ").append(text);
    const long count = countOf(line);
    if (!isPowerOfTen(count))
        return;
    if (count > 1)
        line += " (" + std::to_string(count) + " times in a row)";
    line.insert(0, now() + " ");
    std::replace_if(
        line.begin(), line.end(), [](unsigned char c) { return c < 32; }, ' ');
    std::error_code ignored;
    std::filesystem::create_directories(m_logFile.parent_path(), ignored);
    const auto size = std::filesystem::file_size(m_logFile, ignored);
    if (!ignored && size >= largestLog)
        std::filesystem::rename(m_logFile, std::filesystem::path(m_logFile) += ".old", ignored);
    std::ofstream(m_logFile, std::ios::app) << line << '\n';
}

} // namespace torvik
