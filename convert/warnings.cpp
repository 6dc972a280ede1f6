// SPDX-License-Identifier: MIT
#include "convert/warnings.h"

#include "gcode/comment_check.h"
#include "gcode/program_size.h"

namespace torvik {

std::vector<std::string> commentWarnings(const Job& job, const ToolList& tools,
                                         const Dialect& dialect) {
    std::vector<std::string> warnings;
    for (const CommentFault& fault : commentFaults(job, tools, dialect)) {
        const std::string about =
            (fault.isTool ? "the type of tool " : "") + fault.field + ", \"" + fault.text + "\": ";
        if (fault.endsComment)
            warnings.push_back(about + "a round bracket ends the comment, and the control may read "
                                       "the rest as statements");
        if (!fault.lost.empty())
            warnings.push_back(about + "a program cannot hold " + fault.lost +
                               ", ? stands there instead");
    }
    return warnings;
}

std::string longText(const ProgramSize& size) {
    return "the program has " + std::to_string(size.lines) + " lines (about " +
           std::to_string(size.megabytes()) + " MB) in " + std::to_string(size.steps) +
           " depth passes and pecks";
}

std::string tooLongText(const Job& job, const ProgramSize& size) {
    const auto& [pen, radius, settings] = size.longest.value();
    return "the program would have more than " + std::to_string(mostLines) +
           " lines, most of them for " + groupText(job.answers.gudtPens[pen], radius) +
           "; larger steps or a smaller depth make it shorter";
}

} // namespace torvik
