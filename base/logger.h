// SPDX-License-Identifier: MIT
// The error logger: appends what happened to the program's log file and, for errors, tells the
// user through the report that the program hands in (a message box, a line on standard error).
// A log file that cannot be written is passed over: logging never stops the program. One that has
// grown to a megabyte becomes NAME.old, in place of the one before. Of equal messages in a row the
// first is written and then the 10th, the 100th and so on, each with its count.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace torvik {

// What is logged. The texts of the settings "LogErrors", "LogTrace" and "LogInfo" switch on with
// any number but 0; an empty text keeps the default. "LogExclude" lists procedures and modules,
// separated by commas, whose traces and information are left out.
struct LogSwitches {
    bool errors = true;
    bool trace = false;
    bool info = false;
    std::vector<std::string> exclude;

    static LogSwitches fromTexts(std::string_view errors, std::string_view trace,
                                 std::string_view info, std::string_view exclude);
};

// An error as the user is told of it.
struct ErrorReport {
    std::string_view procedure;
    std::string_view module;
    std::string_view cause;
    bool isUnreadable = false; // a file cannot be read, or the memory ended

    // "An error has occurred in PROCEDURE (MODULE):", a line break, and the cause with a full stop.
    std::string message() const;
};

class Logger {
public:
    using Report = std::function<void(const ErrorReport& report)>;

    // An empty path logs to no file.
    explicit Logger(std::filesystem::path logFile = {}, Report report = {});

    void setSwitches(LogSwitches switches) { m_switches = std::move(switches); }
    void setReport(Report report) { m_report = std::move(report); }

    // Logs the error and reports it to the user.
    void reportError(std::string_view procedure, std::string_view module, std::string_view cause,
                     bool isUnreadable = false);
    // Logs the error only, where the work goes on with a default.
    void logError(std::string_view procedure, std::string_view module, std::string_view cause);
    void trace(std::string_view procedure, std::string_view module);
    void info(std::string_view procedure, std::string_view module, std::string_view text);

private:
    // How often the message has come in a row, this time included.
    long countOf(std::string_view message);
    bool excluded(std::string_view procedure, std::string_view module) const;
    void append(std::string_view kind, std::string_view procedure, std::string_view module,
                std::string_view text);

    std::filesystem::path m_logFile;
    Report m_report;
    LogSwitches m_switches;
    std::string m_lastMessage;
    long m_lastCount = 0;
};

} // namespace torvik
