// SPDX-License-Identifier: MIT
#include "job/colour_tree.h"

#include "base/error_trap.h"
#include "base/picture.h"
#include "job/job.h"

namespace torvik {

ColourNode colourNode(const Answers& answers, std::int16_t number) {
    const Pen& pen = answers.gudtPens[number];
    std::int16_t run = imageCut;
    if (pen.blnOmit)
        run = imageOmitted;
    else if (pen.blnCircles)
        run = imageCircles;
    const auto image = [number](std::int16_t of) { return static_cast<std::int16_t>(of + number); };

    ColourNode node{pen.strColour, pen.strColour, image(run), false, false, {}};
    for (long k = 1; k <= pen.intRadiusCount; ++k)
        node.children.push_back({pen.strColour + formatInteger(k, 2),
                                 formatFixed(2.0 * pen.sngRadii[k], 1) + "mm",
                                 image(imageHole),
                                 false,
                                 false,
                                 {}});
    if (pen.intRadiusCount > 0) {
        const bool isCut = !pen.blnDrill && answers.gudtSettings[pen.intSettings].blnComplete;
        if (isCut)
            node.image = image(imageCut);
        node.expanded = !isCut;
    }
    return node;
}

void CreateTree(const Answers& answers, Position& position, Logger& logger) {
    withErrorTrap(logger, {"CreateTree", "modHpgl"}, [&] {
        position.gudtColourTree.clear();
        for (std::int16_t pen = 1; pen <= penCount; ++pen)
            if (answers.gudtPens[pen].blnUsed)
                position.gudtColourTree.push_back(colourNode(answers, pen));
    });
}

} // namespace torvik
