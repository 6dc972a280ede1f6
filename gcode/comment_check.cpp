// SPDX-License-Identifier: MIT
#include "gcode/comment_check.h"

#include "base/picture.h"
#include "base/text.h"
#include "gcode/dialects.h"
#include "gcode/header.h"
#include "job/job.h"
#include "tools/tool_list.h"

#include <set>

namespace torvik {
namespace {

// Whether the text holds what begins or ends a comment that has an end other than its line's.
bool endsComment(std::string_view text, const Dialect& dialect) {
    return !dialect.commentCloser.empty() &&
           (text.find(dialect.commentCloser) != std::string_view::npos ||
            text.find(dialect.commentOpener) != std::string_view::npos);
}

} // namespace

std::vector<CommentFault> commentFaults(const Job& job, const ToolList& tools,
                                        const Dialect& dialect) {
    std::vector<CommentFault> faults;
    const auto check = [&](std::string field, std::string_view text, bool isTool) {
        CommentFault fault{std::move(field), std::string(text), isTool, endsComment(text, dialect),
                           lettersOutsideLatin1(text)};
        if (fault.endsComment || !fault.lost.empty())
            faults.push_back(std::move(fault));
    };
    for (std::int16_t i = headerDate; i <= headerBilletZ; ++i)
        check(headerFieldName(i), trimBlanks(job.answers.gstrHeader[i]), false);
    std::set<std::int16_t> checked;
    for (const std::int16_t place : toolsInUse(job))
        if (isInList(tools, place) && checked.insert(place).second) {
            const Tool& tool = toolAt(tools, place);
            check("T" + formatInteger(tool.intNumber), tool.strType, true);
        }
    return faults;
}

} // namespace torvik
