// SPDX-License-Identifier: MIT
#include "answers/program_folder.h"

#include "base/files.h"
#include "base/user_folders.h"

#ifdef _WIN32
#include "base/whole_file.h"
#else
#include <unistd.h>
#endif

namespace torvik {
namespace {

namespace fs = std::filesystem;

fs::path homeFolder() {
    const std::string home = environmentText("TORVIK_HOME");
    if (home.empty())
        return {};
    std::error_code ignored; // where there is no current folder, the name stays as it is
    const fs::path whole = fs::absolute(pathFromUtf8(home), ignored);
    return ignored ? pathFromUtf8(home) : whole.lexically_normal();
}

#ifdef _WIN32

bool belongsToSystem(const fs::path&) {
    return false;
}

// Who may write is not looked up there unless a file is made; it is removed at once.
bool canBeWritten(const fs::path& folder) {
    try {
        const WholeFile probe(folder / "probe");
        return true;
    } catch (const FileError&) {
        return false;
    }
}

#else

// Folders of the system are shared with other programs; whoever may write to them should not.
bool belongsToSystem(const fs::path& folder) {
    const std::string inside = folder.native() + '/';
    return inside.starts_with("/usr/") || inside.starts_with("/bin/");
}

bool canBeWritten(const fs::path& folder) {
    return access(folder.c_str(), W_OK) == 0;
}

#endif

} // namespace

fs::path programFolder() {
    const fs::path home = homeFolder();
    return home.empty() ? executableFolder() : home;
}

fs::path dataFolder() {
    const fs::path home = homeFolder();
    return home.empty() ? dataFolderFor(programFolder()) : home;
}

fs::path dataFolderFor(const fs::path& executableFolder) {
    return !belongsToSystem(executableFolder) && canBeWritten(executableFolder)
               ? executableFolder
               : userDataFolder() / "Torvik";
}

fs::path savedSettingsFolder() {
    return dataFolder() / "PlotSave";
}

fs::path sampleFolder() {
    fs::path own = programFolder() / "Sample files";
    std::error_code ignored;
    if (fs::is_directory(own, ignored))
        return own;
    return executableFolder().parent_path() / "share" / "torvik" / "samples";
}

fs::path logFile(std::string_view programName) {
    return dataFolder() / pathFromUtf8(std::string(programName).append(".log"));
}

} // namespace torvik
