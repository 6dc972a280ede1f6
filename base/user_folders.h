// SPDX-License-Identifier: MIT
// Where the running program stands, and where its user keeps settings and data. Plain look-ups, so
// that a program that only reads starts without a toolkit.
#pragma once

#include <filesystem>
#include <string>

namespace torvik {

// The folder of the running program's file; the current one where the system does not tell.
std::filesystem::path executableFolder();

// The user's folders for settings and for data. They need not exist.
std::filesystem::path userConfigFolder();
std::filesystem::path userDataFolder();

// A folder on this machine for locks and sockets, which is the user's and open to nobody else; it
// is made where it is missing. Empty where there is none.
std::filesystem::path userRuntimeFolder();

// The value of an environment variable (UTF-8), empty where it is not set.
std::string environmentText(const char* name);

} // namespace torvik
