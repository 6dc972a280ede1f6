// SPDX-License-Identifier: MIT
#include "preview/cut/field_painter.h"
#include "preview/cut/solid_painter.h"
#include "preview/cut/timeline.h"
#include "tests/preview/cut/badge.h"

#include <set>

namespace torvik {
namespace {

class CutPicturesTest : public testing::Test {
protected:
    // 5 pixels a millimetre, with 36 pixels round what is cut and the billet.
    CutPicturesTest() {
        view.setSize(image.size());
        const sweep::Grid& grid = work->whole().grid;
        view.setWhole({grid.lowX, grid.lowY, grid.columns * grid.cell, grid.rows * grid.cell});
        FieldPainter().paint(image, work->whole(), work->billet(), shades, view, 1);
    }
    QRgb at(double x, double y) { return image.pixel(view.toPixels({x, y}).toPoint()); }

    std::shared_ptr<CutWork> work = sweptBadge();
    CutShades shades{work->whole(), work->cuts(), work->billet()};
    QImage image{600, 400, QImage::Format_RGB32};
    CutView view;
};

TEST_F(CutPicturesTest, DepthsRimsHolesAndWhatLiesOutsideEachLookDifferent) {
    EXPECT_EQ(at(5, 5), CutShades::surface);
    EXPECT_EQ(at(30, 30), qRgb(208, 208, 208)) << "the shallowest";
    int darkRows = 0;
    for (double y = 28; y < 32; y += 1 / view.scale())
        darkRows += qRed(at(30, y)) < 100 ? 1 : 0;
    EXPECT_EQ(darkRows, 2) << "a rim at each edge";
    std::set<QRgb> hole;
    for (double x = 78; x < 82; x += 0.1)
        hole.insert(at(x, 30));
    EXPECT_EQ(hole, (std::set<QRgb>{CutShades::hatch, CutShades::hole}));
    EXPECT_GT(qRed(at(90, 62)), qGreen(at(90, 62)) + 40) << "red beside the billet";
    EXPECT_EQ(at(90, 58), shades.colour(200));
}

TEST_F(CutPicturesTest, ASlotFinerThanAPixelIsNotLost) {
    QImage small(120, 120, QImage::Format_RGB32); // less than half a pixel a millimetre
    view.setSize(small.size());
    FieldPainter().paint(small, work->whole(), work->billet(), shades, view, 1);
    EXPECT_LT(qRed(small.pixel(view.toPixels({30, 30}).toPoint())), 100);
}

TEST_F(CutPicturesTest, TheLegendNamesTheDepthsThatAreLeft) {
    QStringList texts;
    for (const Legend::Row& row : shades.legend())
        texts.append(row.text);
    EXPECT_EQ(texts, QStringList({"1.00 mm", "2.00 mm", "through"}));
}

TEST_F(CutPicturesTest, ZoomingKeepsWhatLiesUnderThePointer) {
    const QPointF pixel(200, 150);
    const QPointF place = view.toPlace(pixel);
    const double scale = view.scale();
    view.zoomAbout(pixel, 4);
    EXPECT_NEAR(view.scale(), 4 * scale, 1e-9);
    EXPECT_NEAR(view.toPlace(pixel).x(), place.x(), 1e-9);
    EXPECT_NEAR(view.toPlace(pixel).y(), place.y(), 1e-9);
    view.zoomAbout(pixel, 0.01);
    EXPECT_TRUE(view.isWhole());
}

TEST_F(CutPicturesTest, TheWholeSolidIsSeenFromEverySideInAnyWindow) {
    const SolidCells cells(work->whole(), work->billet());
    for (const QSize size : {QSize(120, 200), QSize(200, 120)})
        for (SolidCamera camera; camera.turn < 4.4; camera.turn += 0.35) {
            QImage solid(size, QImage::Format_RGB32);
            paintSolid(solid, cells, camera, 1);
            const auto isEdge = [&](int x, int y) {
                return x == 0 || y == 0 || x == size.width() - 1 || y == size.height() - 1;
            };
            int edge = 0;
            int inner = 0;
            for (int y = 0; y < size.height(); ++y)
                for (int x = 0; x < size.width(); ++x)
                    if (solid.pixel(x, y) != camera.background)
                        ++(isEdge(x, y) ? edge : inner);
            EXPECT_EQ(edge, 0) << camera.turn;
            EXPECT_GT(inner, size.width() * size.height() / 8) << camera.turn;
        }
}

TEST_F(CutPicturesTest, FromAboveTheSolidShowsSurfaceFloorsAndThroughTheHole) {
    const SolidCells cells(work->whole(), work->billet());
    SolidCamera camera;
    camera.turn = -1.5707963; // X to the right
    camera.lift = SolidCamera::mostLift;
    camera.background = qRgb(0, 0, 200);
    QImage solid(640, 480, QImage::Format_RGB32);
    paintSolid(solid, cells, camera, 1);
    std::set<QRgb> across;
    for (int x = 320; x < 640; ++x)
        across.insert(solid.pixel(x, 240));
    EXPECT_TRUE(across.contains(qRgb(0xEE, 0xDF, 0xC2))) << "the surface";
    EXPECT_TRUE(across.contains(qRgb(0, 0, 160))) << "the table below the hole";
    EXPECT_TRUE(across.contains(camera.background)) << "beside the piece";
    QImage again(640, 480, QImage::Format_RGB32);
    paintSolid(again, cells, camera, 3);
    EXPECT_EQ(solid, again);
}

// 600 mm/min for 40 mm are 4 seconds, and the acceleration of 100 mm/s² costs 1/10 of one.
TEST_F(CutPicturesTest, TheTimelineKnowsWhatIsMadeWhen) {
    const Timeline& timeline = work->timeline();
    const auto isSlot = [](const check::Move& move) { return move.line == 13; };
    const check::Moves& moves = work->piece().moves;
    const auto slot =
        static_cast<std::size_t>(std::find_if(moves.begin(), moves.end(), isSlot) - moves.begin());
    EXPECT_NEAR(timeline.end(slot) - timeline.start(slot), 4 + 0.1, 1e-9);
    const Moment half = timeline.at(timeline.start(slot) + (4 + 0.1) / 4);
    EXPECT_EQ(half.move, slot);
    EXPECT_NEAR(half.fraction, 0.25, 1e-9);
    EXPECT_EQ(timeline.at(timeline.seconds()).move, moves.size());
}

} // namespace
} // namespace torvik
