// SPDX-License-Identifier: MIT
// One of several copies that change the workshop's tools and settings at the same time: each change
// adds a tool of the copy's own, takes out the one that it added ten changes before, and stores a
// setting. What cannot be stored at once is tried again. Prints the longest time of a change in ms.
// usage: tool_changes FILE COPY CHANGES
#include "base/logger.h"
#include "tools/settings/open_registry.h"
#include "tools/tool_edits.h"
#include "tools/tool_store.h"

#include <QCoreApplication>

#include <algorithm>
#include <chrono>
#include <iostream>

namespace torvik {
namespace {

constexpr int keptTools = 10;
constexpr int mostTries = 200;

void deleteNumber(ToolList& tools, int number) {
    for (std::int16_t place = 1; place <= tools.gintToolCount; ++place)
        if (tools.gudtTools[place].intNumber == number) {
            deleteTool(tools, place);
            return;
        }
}

bool change(ToolList& tools, Registry& registry, Logger& logger, int copy, int i) {
    const int number = copy * 2000 + i;
    addTool(tools, {static_cast<std::int16_t>(number), "Drill", 3});
    if (i >= keptTools)
        deleteNumber(tools, number - keptTools);
    int tries = 0;
    do
        ToolDataSave(tools, registry, logger);
    while (tools.toolsUnsaved && ++tries < mostTries);
    const std::string setting = "Copy" + std::to_string(copy);
    while (!registry.RegistryValuePut(setting, std::to_string(i)) && ++tries < mostTries) {
    }
    return tries < mostTries;
}

} // namespace
} // namespace torvik

int main(int argc, char** argv) {
    using namespace torvik;
    using Clock = std::chrono::steady_clock;
    const QCoreApplication application(argc, argv);
    if (argc != 4)
        return 1;
    const auto registry = openRegistry(argv[1]);
    Logger logger;
    ToolList tools;
    ToolDataLoad(tools, *registry, logger);
    Clock::duration longest{};
    for (int i = 0; i < std::stoi(argv[3]); ++i) {
        const auto start = Clock::now();
        if (!change(tools, *registry, logger, std::stoi(argv[2]), i))
            return 2;
        longest = std::max(longest, Clock::now() - start);
    }
    std::cout << std::chrono::duration_cast<std::chrono::milliseconds>(longest).count() << '\n';
}
