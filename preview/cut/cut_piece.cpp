// SPDX-License-Identifier: MIT
#include "preview/cut/cut_piece.h"

#include "base/picture.h"
#include "check/opening_lines.h"
#include "check/program_reader.h"
#include "check/time/pace_settings.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace torvik {

sweep::Diameters CutPiece::diameters() const {
    sweep::Diameters diameters;
    for (const auto& [number, tool] : tools)
        diameters[number] = tool.diameter;
    return diameters;
}

int CutPiece::toolAt(std::size_t move) const {
    for (std::size_t i = std::min(move + 1, moves.size()); i-- > 0;)
        if (moves[i].kind == check::MoveKind::tool)
            return sweep::toolNumber(moves[i]);
    return 0;
}

double CutPiece::radiusOf(int tool) const {
    const auto found = tools.find(tool);
    return (found == tools.end() ? sweep::unlistedDiameter : found->second.diameter) / 2;
}

QString CutPiece::toolText(int tool) const {
    if (tool == 0)
        return {};
    const auto found = tools.find(tool);
    if (found == tools.end())
        return QCoreApplication::translate("FrmCut", "T%1 (not in the list of tools)").arg(tool);
    const QString text = QStringLiteral("T%1 %2 mm %3").arg(tool);
    return text
        .arg(QString::fromStdString(formatFixed(found->second.diameter, 1)), found->second.name)
        .trimmed();
}

QString CutPiece::groupAt(std::uint32_t line) const {
    const auto behind = std::upper_bound(
        groups.begin(), groups.end(), line,
        [](std::uint32_t wanted, const CutGroup& group) { return wanted < group.firstLine; });
    return behind == groups.begin() ? QString() : (behind - 1)->name;
}

CutPiece pieceOfProgram(std::string program, std::string_view sideText) {
    CutPiece piece;
    piece.program = std::move(program);
    const check::Target* const target = check::recogniseTarget(piece.program);
    if (target == nullptr)
        return piece;
    check::Findings findings;
    check::Program read = check::readProgram(*target, piece.program, findings);
    const check::Header header =
        target->commentOpener == 0 ? check::readSideText(sideText) : read.header;
    piece.moves = std::move(read.moves);
    piece.pace = check::paceOf(*target);
    piece.billet.length = header.billet.length;
    piece.billet.width = header.billet.width;
    piece.billet.depth = header.billet.depth;
    for (const check::ListedTool& tool : header.tools)
        piece.tools[tool.number] = {tool.diameter, {}};
    return piece;
}

} // namespace torvik
