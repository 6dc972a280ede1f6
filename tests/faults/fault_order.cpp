// SPDX-License-Identifier: MIT
#include "tests/faults/fault_order.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <sstream>
#include <string>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::array callNames{"open",  "write", "sync",   "rename", "link",
                               "close", "stat",  "remove", "any"};
constexpr std::array<std::pair<const char*, int>, 10> errors{{{"usual", usualFailure},
                                                              {"EIO", EIO},
                                                              {"ENOSPC", ENOSPC},
                                                              {"EACCES", EACCES},
                                                              {"EINTR", EINTR},
                                                              {"EROFS", EROFS},
                                                              {"EDQUOT", EDQUOT},
                                                              {"EBUSY", EBUSY},
                                                              {"half", halfWritten},
                                                              {"kill", killed}}};
int logFile = -1;

} // namespace

bool torvikTakeOrder(const char* order) {
    static std::string folder;
    static Fault fault{};
    std::istringstream words(order);
    std::string call;
    std::string howOften;
    std::string disk;
    std::string error;
    words >> call >> fault.k >> howOften >> disk >> error >> folder;
    const auto* const isCall = std::find(callNames.begin(), callNames.end(), call);
    const auto* const isError = std::find_if(errors.begin(), errors.end(),
                                             [&](const auto& row) { return row.first == error; });
    if (isCall == callNames.end() || isError == errors.end() || folder.empty())
        return false;
    fault = {folder.c_str(),  static_cast<Call>(isCall - callNames.begin()),
             fault.k,         howOften == "ever",
             disk == "plain", isError->second};
    if (logFile >= 0)
        syscall(SYS_close, logFile);
    if (const char* const name = std::getenv("TORVIK_FAULT_LOG"))
        logFile = static_cast<int>(
            syscall(SYS_open, name, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644));
    torvikArmFault(&fault);
    return true;
}

namespace {

__attribute__((constructor)) void takeOrderOfEnvironment() {
    const char* const order = std::getenv("TORVIK_FAULT");
    if (order != nullptr && !torvikTakeOrder(order))
        std::abort();
}

} // namespace

void noteCall(Call call, const char* where, bool failing) {
    if (logFile < 0)
        return;
    const int before = errno;
    const std::string line = std::string(failing ? "!" : "") +
                             callNames[static_cast<std::size_t>(call)] + " " + where + "\n";
    syscall(SYS_write, logFile, line.data(), line.size());
    errno = before;
}
