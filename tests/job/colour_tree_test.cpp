// SPDX-License-Identifier: MIT
#include "job/colour_tree.h"
#include "tests/job/drawing.h"

#include <gtest/gtest.h>

namespace torvik {
namespace {

// "KEY TEXT IMAGE", with "(CHILDREN)" where there are any and "+" where they show.
std::string described(const std::vector<ColourNode>& nodes) {
    std::string text;
    for (const ColourNode& node : nodes) {
        text += text.empty() ? "" : ", ";
        text += node.key + " " + node.text + " " + std::to_string(node.image);
        if (!node.children.empty())
            text += (node.expanded ? " +(" : " (") + described(node.children) + ")";
    }
    return text;
}

TEST(CreateTree, ShowsEachUsedPenAndItsHoleSizes) {
    const std::string sizes = "(Black01 3.1mm 25, Black02 10.0mm 25), Blue Blue ";
    const struct {
        const char* says;
        bool omit, drill, complete;
        std::string tree;
    } rows[] = {
        {"a pen of circles, nothing said yet", false, false, false,
         "Black Black 17 +" + sizes + "4"},
        {"a pen of circles that is drilled", false, true, true, "Black Black 17 +" + sizes + "4"},
        {"a pen of circles that is cut is collapsed", false, false, true,
         "Black Black 1 " + sizes + "4"},
        {"a pen that is left out", true, true, true, "Black Black 9 +" + sizes + "12"},
        {"a pen that is left out of the cutting", true, false, true,
         "Black Black 1 " + sizes + "12"},
    };
    Logger logger;
    for (const auto& row : rows) {
        // Diameters of 3.05 mm, which as a single is a little more than a half, and of 10 mm.
        Job job = setUpDrawing("SP4;PD1,1;SP1;CI200;CI61");
        for (Pen* pen : {&job.answers.gudtPens[1], &job.answers.gudtPens[4]}) {
            pen->blnOmit = row.omit;
            pen->blnDrill = row.drill;
            job.answers.gudtSettings[pen->intSettings].blnComplete = row.complete;
        }
        job.position.gudtColourTree.emplace_back();
        CreateTree(job.answers, job.position, logger);
        EXPECT_EQ(described(job.position.gudtColourTree), row.tree) << row.says;
    }
}

} // namespace
} // namespace torvik
