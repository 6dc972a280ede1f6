// SPDX-License-Identifier: MIT
// torvik-bench-time COMMAND...: runs a command without its output and prints the processor's time
// that it took, of the program and of the system for it, and the time on the clock, in
// microseconds. Its exit code is that of the command.
#include <chrono>
#include <fcntl.h>
#include <iostream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int notRun = 127;

long microseconds(const timeval& time) {
    return time.tv_sec * 1'000'000L + time.tv_usec;
}

[[noreturn]] void become(char** command) {
    dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
    execvp(command[0], command);
    _exit(notRun);
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "usage: torvik-bench-time COMMAND...\n";
        return notRun;
    }
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    const pid_t child = fork();
    if (child == 0)
        become(argv + 1);
    int status = 0;
    rusage used{};
    if (child < 0 || wait4(child, &status, 0, &used) < 0)
        return notRun;
    const auto taken = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - start);
    std::cout << microseconds(used.ru_utime) + microseconds(used.ru_stime) << ' ' << taken.count()
              << '\n';
    return WIFEXITED(status) ? WEXITSTATUS(status) : notRun;
}
