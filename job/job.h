// SPDX-License-Identifier: MIT
// The one job: the drawing, the pens, the answers given for them and where the wizard stands.
// Subscripts of paths, pens, settings, radii and the order start at 1, those of the header at 0.
#pragma once

#include "base/arrays.h"
#include "job/colour_tree.h"
#include "job/reading.h"
#include "job/records.h"

#include <cstdint>
#include <string>
#include <vector>

namespace torvik {

// Subscripts of gstrHeader.
enum HeaderField : std::int16_t {
    headerDate,
    headerDesigner,
    headerTeacher,
    headerTeachingGroup,
    headerPartName,
    headerMaterial,
    headerBilletX,
    headerBilletY,
    headerBilletZ,
};

// What was read from the file.
struct Drawing {
    std::string gstrPlotFile; // full path, UTF-8
    std::string gstrDigest;   // of the file's bytes, lower-case hexadecimal

    OneBasedArray<Path> gudtPaths; // in file order
    std::int16_t gintPathCount = 0;
    Reading reading; // what of the file the paths do not tell
};

// What is asked for, pen by pen and for the whole part: set up for a drawing, then given by the
// user or taken from those kept for it.
struct Answers {
    BoundedArray<Pen, 1, penCount> gudtPens;
    std::int16_t gintPenCount = 0; // pens that are used

    OneBasedArray<Settings> gudtSettings;
    std::int16_t gintSettingsCount = 0;

    BoundedArray<std::int16_t, 1, penCount> gintOrder; // pens as machined, 0 = none
    std::int16_t gintOrderCount = 0;
    bool gblnOrderSet = false;

    float gsngToolChangeHeight = 50; // mm, as the other heights
    float gsngSafeHeight = 0;
    float gsngRapidDownTo = 2;
    float gsngFeedFactor = 0; // 1 for mm/min, 60 for mm/sec, 0 before the first choice
    std::string gstrFeedUnits;

    BoundedArray<std::string, 0, 8> gstrHeader; // UTF-8, see HeaderField

    std::string gstrSavedFile;   // where the drawing's answers are kept
    bool gblnSavedFound = false; // the answers were taken over from there
};

// Which page of the pens is on show.
struct Position {
    std::int16_t gintCurrentPen = 0;      // 0 before the first
    std::int16_t gintLastPen = 0;         // whose page Back on the order page returns to
    std::int16_t gintCurrentRadius = 0;   // hole size, 0 for the pen as a whole
    std::int16_t gintCurrentSettings = 0; // settings group

    std::vector<ColourNode> gudtColourTree;
};

// How far the written program is.
struct Output {
    bool gblnUnsaved = false; // imported, and no program written yet
    BoundedArray<std::string, 1, 16> gstrOrdinal;
};

struct Job {
    Drawing drawing;
    Answers answers;
    Position position;
    Output output;
    std::int16_t gintWizardStep = 1; // 1 to 6
};

// Empties the job before an import: paths, pens, settings, tree, order, header and the wizard's
// positions; the heights become 50, 0 and 2 mm.
void ClearData(Job& job);

} // namespace torvik
