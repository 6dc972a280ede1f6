// SPDX-License-Identifier: MIT
// The tool list and the users' types from a settings file of any bytes: loading never fails in
// another way than the reported one, the file's other text stays, and what was loaded is saved so
// that it loads again, but for diameters rounded to three decimals and records over 79 bytes.
#include "base/error_trap.h"
#include "base/numbers.h"
#include "base/picture.h"
#include "fuzz/invariant.h"
#include "tests/tools/ini_registry.h"
#include "tools/tool_store.h"

#include <cmath>
#include <cstdint>

namespace {

using torvik::holds;
using torvik::IniRegistry;
using torvik::ToolList;

// Whether the types, most of them empty, would take long and show nothing new.
bool hasManyTypes(const IniRegistry& registry) {
    torvik::Logger quiet;
    double count = 0;
    torvik::withErrorTrap(quiet, {}, [&] {
        count = torvik::leadingNumber(registry.strRegistryValueGet("ToolTypes", "0"));
    });
    return count > 300 && count < 32768;
}

struct Loaded {
    ToolList tools;
    int errors = 0;
};

Loaded load(const IniRegistry& registry) {
    Loaded loaded;
    torvik::Logger logger({}, [&](const torvik::ErrorReport&) { ++loaded.errors; });
    torvik::ToolDataLoad(loaded.tools, registry, logger);
    torvik::ToolTypeUserLoad(loaded.tools, registry, logger);
    return loaded;
}

std::string lastToolName(const ToolList& tools) {
    return "Tool" + torvik::formatInteger(tools.gudtTools.count(), 2);
}

bool areAlike(float a, float b) {
    return std::fabs(a - b) <= 0.0005F + std::fabs(a) * 1e-6F;
}

void checkTools(const ToolList& before, const ToolList& after) {
    for (int i = 1; i <= after.gudtTools.count(); ++i) {
        const torvik::Tool& was = before.gudtTools[i];
        const torvik::Tool& is = after.gudtTools[i];
        holds(is.intNumber == was.intNumber, "the number reads back");
        holds(is.strType == was.strType, "the type reads back");
        holds(areAlike(was.sngDiameter, is.sngDiameter), "the diameter reads back");
        holds(areAlike(was.sngReserved, is.sngReserved), "the reserved number reads back");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    IniRegistry registry(text);
    holds(registry.text() == text, "a file that is only read stays as it is");

    if (hasManyTypes(registry))
        return 0;
    const Loaded first = load(registry);
    torvik::Logger quiet;
    torvik::ToolTypeUserSave(first.tools, registry, quiet);
    const bool isWhole = first.tools.gudtTools.count() == first.tools.gintToolCount;
    if (isWhole)
        torvik::ToolDataSave(first.tools, registry, quiet);

    const IniRegistry saved(registry.text());
    holds(saved.text() == registry.text(), "what was saved is one file");
    const Loaded second = load(saved);
    holds(second.tools.gstrUserToolTypes == first.tools.gstrUserToolTypes, "the types read back");
    if (isWhole && second.errors > 0)
        holds(saved.strRegistryValueGet(lastToolName(second.tools), "").empty(),
              "only a record that is too long is lost");
    else if (isWhole)
        checkTools(first.tools, second.tools);
    return 0;
}
