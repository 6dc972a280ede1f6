// SPDX-License-Identifier: MIT
#include "manual/places.h"

#include "answers/program_folder.h"
#include "base/files.h"
#include "base/user_folders.h"
#include "tools/settings_file_reader.h"

#include <vector>

namespace torvik {
namespace {

// The places are those of any user, whoever builds this.
std::string inConfigFolder(const std::filesystem::path& path) {
    return "~/.config/" + utf8FromPath(path.lexically_relative(userConfigFolder()));
}

std::string inDataFolder(const std::filesystem::path& path) {
    return "~/.local/share/" + utf8FromPath(path.lexically_relative(userDataFolder()));
}

} // namespace

std::span<const GuideRow> variables() {
    static const std::vector<GuideRow> rows{
        {"TORVIK_HOME", "Another folder for the answers and the log, which a class may share."},
        {"XDG_CONFIG_HOME, XDG_DATA_HOME",
         "The user's folders for settings and for data, usually ~/.config and ~/.local/share."},
    };
    return rows;
}

std::span<const GuideRow> places() {
    const auto data = dataFolderFor("/usr/bin");
    static const std::vector<GuideRow> rows{
        {inConfigFolder(userSettingsFile()), "The workshop's tools and settings, in plain lines."},
        {inDataFolder(data / "PlotSave"),
         "The answers for each drawing; those not finished yet end in .unfinished."},
        {inDataFolder(data / "torvik.log"), "What went wrong."},
        {"/usr/share/torvik/samples/", "Drawings to try, with answers and a tool library."},
    };
    return rows;
}

} // namespace torvik
