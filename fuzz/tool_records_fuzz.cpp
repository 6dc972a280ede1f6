// SPDX-License-Identifier: MIT
// The tool list and the users' types from a settings file of any bytes: loading never fails in
// another way than the reported one, the file's other text stays, and what was loaded is saved so
// that it loads again, but for diameters rounded to three decimals and records over 79 bytes. A
// record that cannot be read stays as it is.
#include "base/error_trap.h"
#include "base/numbers.h"
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

ToolList load(const IniRegistry& registry) {
    ToolList tools;
    torvik::Logger quiet;
    torvik::ToolDataLoad(tools, registry, quiet);
    torvik::ToolTypeUserLoad(tools, registry, quiet);
    return tools;
}

bool areAlike(float a, float b) {
    return std::fabs(a - b) <= 0.0005F + std::fabs(a) * 1e-6F;
}

void checkTools(const ToolList& before, const ToolList& after) {
    holds(after.gintToolCount == before.gintToolCount, "every place reads back");
    for (int i = 1; i <= after.gintToolCount; ++i) {
        const torvik::Tool& was = before.gudtTools[i];
        const torvik::Tool& is = after.gudtTools[i];
        if (is.strUnreadable && !was.strUnreadable) {
            holds(is.strUnreadable->size() > IniRegistry::maxValueBytes,
                  "only a record that is too long cannot be read again");
            continue;
        }
        holds(is.strUnreadable == was.strUnreadable, "what cannot be read stays");
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
    ToolList tools = load(registry);
    torvik::Logger quiet;
    torvik::ToolTypeUserSave(tools, registry, quiet);
    torvik::ToolDataSave(tools, registry, quiet);

    const IniRegistry saved(registry.text());
    holds(saved.text() == registry.text(), "what was saved is one file");
    const ToolList again = load(saved);
    holds(again.gstrUserToolTypes == tools.gstrUserToolTypes, "the types read back");
    checkTools(tools, again);
    return 0;
}
