// SPDX-License-Identifier: MIT
#include "preview/cut/tried_piece.h"

#include "job/job.h"
#include "job/pens.h"
#include "languages/shown_text.h"
#include "tools/tool_list.h"
#include "trial/trial.h"

#include <cmath>
#include <numbers>

namespace torvik {
namespace {

constexpr double chordAngle = std::numbers::pi / 60; // radians

QPolygonF pointsOf(const Path& path) {
    if (path.intType == straightLine)
        return QPolygonF(QList<QPointF>{QPointF(path.sngStartX, path.sngStartY),
                                        QPointF(path.sngEndX, path.sngEndY)});
    double sweep = double{path.sngAngleTo} - path.sngAngleFrom;
    if (sweep <= 0)
        sweep += 2 * std::numbers::pi;
    const int chords = std::max(1, static_cast<int>(std::ceil(sweep / chordAngle)));
    QPolygonF points;
    for (int i = 0; i <= chords; ++i) {
        const double angle = path.sngAngleFrom + sweep * i / chords;
        points.append({path.sngCentreX + path.sngRadius * std::cos(angle),
                       path.sngCentreY + path.sngRadius * std::sin(angle)});
    }
    return points;
}

} // namespace

CutPiece pieceOf(TriedProgram& tried, const Job& job, const ToolList& tools) {
    CutPiece piece;
    piece.name = QString::fromStdString(job.answers.gstrHeader[headerPartName]);
    piece.program = std::move(tried.program);
    piece.moves = std::move(tried.moves);
    piece.pace = tried.pace;
    piece.billet.length = tried.billet.length;
    piece.billet.width = tried.billet.width;
    piece.billet.depth = tried.billet.depth;
    for (std::int16_t place = 1; place <= tools.gintToolCount; ++place)
        if (const Tool* const tool = findTool(tools, place))
            piece.tools[tool->intNumber] = {tool->sngDiameter,
                                            QString::fromStdString(tool->strType)};
    for (const TriedGroup& group : tried.groups)
        piece.groups.push_back({group.firstLine, shownText(group.name)});
    for (const Path& path : job.drawing.gudtPaths)
        if (!isMachined(job.answers, path.intPen))
            piece.uncut.push_back(pointsOf(path));
    return piece;
}

} // namespace torvik
