// SPDX-License-Identifier: MIT
// Where the program stands and where it keeps what it writes for itself: the answers for drawings
// and the log.
#pragma once

#include <filesystem>
#include <string_view>

namespace torvik {

// The program's own folder: what the environment variable TORVIK_HOME names, else where the
// executable stands.
std::filesystem::path programFolder();

// The program's own folder where it can be written (always, if TORVIK_HOME names it), else
// "Torvik" in the user's own data folder. It need not exist yet.
std::filesystem::path dataFolder();

// The same for an executable in the folder given; without TORVIK_HOME.
std::filesystem::path dataFolderFor(const std::filesystem::path& executableFolder);

// The folder "PlotSave" of the data folder.
std::filesystem::path savedSettingsFolder();

// Where drawings to try are: "Sample files" of the program's own folder, or the folder of an
// installed program. It need not exist.
std::filesystem::path sampleFolder();

// The program's name with ".log" in the data folder.
std::filesystem::path logFile(std::string_view programName);

} // namespace torvik
