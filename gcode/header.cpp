// SPDX-License-Identifier: MIT
#include "gcode/header.h"

#include "base/error_trap.h"
#include "base/errors.h"
#include "base/picture.h"
#include "base/text.h"
#include "gcode/program_output.h"
#include "job/machined_groups.h"
#include "tools/tool_list.h"

#include <array>
#include <string>
#include <vector>

namespace torvik {
namespace {

struct HeaderLabel {
    std::string_view label;
    std::string_view unit;
};

constexpr std::array<HeaderLabel, 9> labels{{{"Date - ", ""},
                                             {"Designer - ", ""},
                                             {"Teacher - ", ""},
                                             {"Teaching Group - ", ""},
                                             {"Name of Part - ", ""},
                                             {"Material - ", ""},
                                             {"Billet Length X - ", "mm"},
                                             {"Billet Width Y - ", "mm"},
                                             {"Billet Depth Z - ", "mm"}}};

std::string toolLine(const Tool& tool) {
    return "T" + formatInteger(tool.intNumber) + " " + formatFixed(tool.sngDiameter, 1) + "mm " +
           latin1Line(tool.strType);
}

void writeHeader(const Job& job, const ToolList& tools, const std::string& opener,
                 const std::string& closer, ProgramOutput& output) {
    for (std::size_t i = 0; i < labels.size(); ++i)
        HeaderLine(job, opener + std::string(labels[i].label), labels[i].unit, closer,
                   static_cast<std::int16_t>(i), output);

    const std::vector<std::int16_t> places = toolsInUse(job);
    for (std::size_t i = 0; i < places.size(); ++i) {
        const long position = static_cast<long>(i) + 1;
        if (position > decltype(Output::gstrOrdinal)::high())
            throw InvalidCall("the program changes to " +
                              formatInteger(static_cast<long>(places.size())) +
                              " tools, the header names the first sixteen only");
        const std::string name =
            places.size() == 1 ? "Tool" : job.output.gstrOrdinal[position] + " tool";
        output.WriteLine(opener + name + " - " + toolLine(toolAt(tools, places[i])) + closer);
    }
}

} // namespace

std::string headerFieldName(std::int16_t index) {
    const std::string_view label = labels.at(static_cast<std::size_t>(index)).label;
    return std::string(label.substr(0, label.find(" - ")));
}

std::vector<std::int16_t> toolsInUse(const Job& job) {
    std::vector<std::int16_t> places;
    visitMachinedGroups(job, [&](const MachinedGroup& group) {
        const std::int16_t place = job.answers.gudtSettings[group.settings].intTool;
        if (places.empty() || places.back() != place)
            places.push_back(place);
    });
    return places;
}

bool WriteHeader(const Job& job, const ToolList& tools, std::string_view opener,
                 std::string_view closer, ProgramOutput& output, Logger& logger) {
    return withErrorTrap(logger, {"WriteHeader", "modHpgl"}, [&] {
        writeHeader(job, tools, std::string(opener), std::string(closer), output);
    });
}

void HeaderLine(const Job& job, std::string_view labelledOpener, std::string_view unit,
                std::string_view closer, std::int16_t index, ProgramOutput& output) {
    const std::string value(trimBlanks(job.answers.gstrHeader[index]));
    if (!value.empty())
        output.WriteLine(std::string(labelledOpener) + latin1Line(value) + std::string(unit) +
                         std::string(closer));
}

} // namespace torvik
