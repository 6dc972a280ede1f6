// SPDX-License-Identifier: MIT
// A small program on a billet of 100 by 60 by 6 mm: a slot of 2 mm, 1 mm deep (line 13), a hole of
// 10 mm right through (line 19), and a slot that leaves the billet (line 22).
#pragma once

#include "preview/cut/cut_work.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace torvik {

inline constexpr const char* badgeProgram = "%\r\n"
                                            "*Billet Length X - 100mm\r\n"
                                            "*Billet Width Y - 60mm\r\n"
                                            "*Billet Depth Z - 6mm\r\n"
                                            "*First tool - T1 2.0mm Slot drill\r\n"
                                            "*Second tool - T2 10.0mm Slot drill\r\n"
                                            "N1 T1\r\n"
                                            "N2 S4000\r\n"
                                            "N3 G0 Z5.00\r\n"
                                            "N4 G0 X10.000 Y30.000\r\n"
                                            "N5 G0 Z2.00\r\n"
                                            "N6 G1 Z-1.00 F60\r\n"
                                            "N7 G1 X50.000 Y30.000 F600\r\n"
                                            "N8 G0 Z50.00\r\n"
                                            "N9 T2\r\n"
                                            "N10 S4000\r\n"
                                            "N11 G0 Z5.00\r\n"
                                            "N12 G0 X80.000 Y30.000\r\n"
                                            "N13 G1 Z-6.20 F60\r\n"
                                            "N14 G0 Z5.00\r\n"
                                            "N15 G0 X80.000 Y60.000\r\n"
                                            "N16 G1 Z-2.00 F60\r\n"
                                            "N17 G1 X100.000 Y60.000 F600\r\n"
                                            "N18 G0 Z50.00\r\n"
                                            "%\r\n";

inline std::shared_ptr<CutWork> sweptBadge() {
    CutPiece piece = pieceOfProgram(badgeProgram);
    piece.name = QStringLiteral("badge");
    piece.groups = {{1, QStringLiteral("Black")}, {15, QStringLiteral("Red")}};
    auto work = std::make_shared<CutWork>(std::move(piece));
    QSignalSpy ended(work.get(), &CutWork::ended);
    EXPECT_TRUE(ended.wait());
    EXPECT_EQ(work->state(), CutWork::State::ready);
    return work;
}

} // namespace torvik
