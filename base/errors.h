// SPDX-License-Identifier: MIT
// Run-time errors: what can go wrong with numbers, subscripts and files. Each carries one
// sentence that a teacher understands. They are thrown inside and caught by the error trap.
#pragma once

#include <cstddef>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

namespace torvik {

// Base of every error that the error trap logs and reports.
class RunTimeError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class SubscriptOutOfRange : public RunTimeError {
public:
    SubscriptOutOfRange(std::ptrdiff_t subscript, std::ptrdiff_t low, std::ptrdiff_t high);
};

class Overflow : public RunTimeError {
public:
    Overflow() : Overflow("a number is too large to be stored") {}
    using RunTimeError::RunTimeError;
};

class DivisionByZero : public RunTimeError {
public:
    DivisionByZero() : RunTimeError("a number was divided by zero") {}
};

class InvalidCall : public RunTimeError {
public:
    using RunTimeError::RunTimeError;
};

// The user ended the work before it was done. No error trap logs or reports it.
class Cancelled : public RunTimeError {
public:
    Cancelled() : RunTimeError("the work was cancelled") {}
};

// A file that cannot be read, written or understood. what() reads "FILE: cause" or
// "FILE, line N: cause".
class FileError : public RunTimeError {
public:
    FileError(const std::string& file, const std::string& cause, long line = 0);

    long line() const { return m_line; } // 0 where the whole file is meant
    const std::string& cause() const { return m_cause; }

private:
    std::string m_cause;
    long m_line;
};

// A file that cannot be read at all, whatever it holds, or that takes more memory than there is.
class UnreadableFile : public FileError {
public:
    using FileError::FileError;
};

// What is to be said of any error: what() in plain words.
std::string causeOf(const std::exception& error);

// Whether the error is an UnreadableFile, or the memory ended where no file was named.
bool isUnreadable(const std::exception& error);

// Runs the work for a file. Where the memory ends, UnreadableFile with the file's name is raised.
template <typename Work>
void namingFile(const std::string& file, Work&& work) {
    try {
        std::forward<Work>(work)();
    } catch (const std::bad_alloc& error) {
        throw UnreadableFile(file, causeOf(error));
    }
}

} // namespace torvik
