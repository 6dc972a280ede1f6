// SPDX-License-Identifier: MIT
#include "base/logger.h"

#include "base/numbers.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <ctime>
#include <fstream>
#include <string>

namespace torvik {
namespace {

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
        std::string_view name = exclude.substr(0, comma);
        exclude.remove_prefix(std::min(comma + 1, exclude.size()));
        name.remove_prefix(std::min(name.find_first_not_of(' '), name.size()));
        name = name.substr(0, name.find_last_not_of(' ') + 1);
        if (!name.empty())
            switches.exclude.emplace_back(name);
    }
    return switches;
}

Logger::Logger(std::filesystem::path logFile, Report report)
    : m_logFile(std::move(logFile)), m_report(std::move(report)) {}

std::string Logger::message(std::string_view procedure, std::string_view module,
                            std::string_view cause) {
    std::string text = "An error has occurred in " + location(procedure, module) + "\n";
    const auto start = text.size();
    text += cause;
    if (start < text.size()) {
        text[start] = static_cast<char>(std::toupper(static_cast<unsigned char>(text[start])));
        if (text.back() != '.')
            text += '.';
    }
    return text;
}

void Logger::reportError(std::string_view procedure, std::string_view module,
                         std::string_view cause) {
    logError(procedure, module, cause);
    if (m_report)
        m_report(message(procedure, module, cause));
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

void Logger::append(std::string_view kind, std::string_view procedure, std::string_view module,
                    std::string_view text) {
    if (m_logFile.empty())
        return;
    std::string line = now() + " " + std::string(kind) + " " + location(procedure, module);
    if (!text.empty())
        line.append(": ").append(text);
    std::replace_if(
        line.begin(), line.end(), [](unsigned char c) { return c < 32; }, ' ');
    std::ofstream(m_logFile, std::ios::app) << line << '\n';
}

} // namespace torvik
