// SPDX-License-Identifier: MIT
// The arrows between the rooms run one way: every include is held against cmake/layers.txt.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

namespace torvik {
namespace {

namespace fs = std::filesystem;

// What each room may include; Qt counts as a room.
using Rooms = std::map<std::string, std::set<std::string>>;

Rooms readRooms(std::istream& table) {
    Rooms rooms;
    for (std::string line; std::getline(table, line);) {
        std::istringstream words(line);
        std::string name;
        std::string colon;
        if (words >> name >> colon && name[0] != '#')
            rooms[name] = {std::istream_iterator<std::string>(words), {}};
    }
    return rooms;
}

// The room of a file's path, empty where it stands in none.
std::string roomOf(const Rooms& rooms, const std::string& path) {
    std::string found;
    for (const auto& [name, mayInclude] : rooms)
        if (path.starts_with(name + "/") && name.size() > found.size())
            found = name;
    return found;
}

// Rooms lead upward only: one whose rooms are all known to be below it is below the next.
std::string cycleOf(const Rooms& rooms) {
    std::set<std::string> below{"Qt"};
    for (bool grows = true; grows;) {
        grows = false;
        for (const auto& [name, mayInclude] : rooms)
            if (std::includes(below.begin(), below.end(), mayInclude.begin(), mayInclude.end()))
                grows = below.insert(name).second || grows;
    }
    for (const auto& [name, mayInclude] : rooms)
        if (!below.contains(name))
            return name + " is part of a cycle or includes an unknown room";
    return {};
}

bool namesTarget(const std::string& path, std::string code) {
    std::transform(code.begin(), code.end(), code.begin(),
                   [](unsigned char c) { return std::tolower(c); });
    const auto names = [&](const char* target) { return code.find(target) != std::string::npos; };
    // The check has a table of its own. The settings that the workshop's programs share bear the
    // last name, too.
    return !path.starts_with("gcode/dialects.") && !path.starts_with("check/targets.") &&
           (names("wincam") || names("winnc") || names("kestra") ||
            (names("maskor") && !path.starts_with("tools/")));
}

// What is wrong with one line, empty where nothing is.
std::string faultOf(const Rooms& rooms, const std::string& path, const std::string& line) {
    const std::string from = roomOf(rooms, path);
    const std::set<std::string>& mayInclude = rooms.at(from);
    if (line.starts_with("#include \"")) {
        const std::string file = line.substr(10, line.rfind('"') - 10);
        const std::string to = roomOf(rooms, file);
        if (file.find('/') != file.npos && to != from && !mayInclude.contains(to))
            return "may not include " + file;
    }
    if (!mayInclude.contains("Qt") && line.starts_with("#include <Q"))
        return "may not include Qt";
    if (namesTarget(path, line.substr(0, line.find("//"))))
        return "names a target";
    return {};
}

// Every fault of the tree in one line.
std::set<std::string> faultsOf(const Rooms& rooms, const fs::path& root) {
    static const std::set<std::string> passedOver{"build", ".git",    "tests",  "bench",
                                                  "fuzz",  "samples", "scripts"};
    std::set<std::string> faults;
    if (const std::string cycle = cycleOf(rooms); !cycle.empty())
        faults.insert(cycle);
    for (const auto& [name, mayInclude] : rooms)
        if (!fs::exists(root / name))
            faults.insert(name + " is no folder");
    for (auto entry = fs::recursive_directory_iterator(root); entry != fs::end(entry); ++entry) {
        if (entry.depth() == 0 && passedOver.contains(entry->path().filename().string()))
            entry.disable_recursion_pending();
        const std::string path = entry->path().lexically_relative(root).generic_string();
        if (!path.ends_with(".cpp") && !path.ends_with(".h"))
            continue;
        if (roomOf(rooms, path).empty()) {
            faults.insert(path + " stands in no room");
            continue;
        }
        std::ifstream file(entry->path());
        long number = 1;
        for (std::string line; std::getline(file, line); ++number)
            if (const std::string fault = faultOf(rooms, path, line); !fault.empty())
                faults.insert(path + ":" + std::to_string(number) + ": " + fault);
    }
    return faults;
}

TEST(Layers, IncludesFollowTheTable) {
    std::ifstream table(TORVIK_SOURCE "/cmake/layers.txt");
    const Rooms rooms = readRooms(table);
    ASSERT_FALSE(rooms.empty());
    EXPECT_EQ(faultsOf(rooms, TORVIK_SOURCE), std::set<std::string>{});
}

TEST(Layers, EachKindOfFaultIsFound) {
    const fs::path root = fs::path(testing::TempDir()) / "torvik_layers";
    fs::remove_all(root);
    const auto write = [&](const std::string& path, const std::string& text) {
        fs::create_directories((root / path).parent_path());
        std::ofstream(root / path) << text << '\n';
    };
    write("low/a.h", "#include \"high/b.h\"");
    write("low/qt.cpp", "#include <QString>");
    write("low/name.cpp", "\nif (name == \"Kestra\")");
    write("high/b.h", "#include \"low/a.h\"\n#include <QString>\n// WinNC");
    write("attic/c.cpp", "");
    std::istringstream table("low :\nhigh : Qt low\nround : low about\nabout : round\n");
    const std::set<std::string> faults{
        "about is no folder",
        "about is part of a cycle or includes an unknown room",
        "attic/c.cpp stands in no room",
        "low/a.h:1: may not include high/b.h",
        "low/name.cpp:2: names a target",
        "low/qt.cpp:1: may not include Qt",
        "round is no folder",
    };
    EXPECT_EQ(faultsOf(readRooms(table), root), faults);
    fs::remove_all(root);
}

} // namespace
} // namespace torvik
