// SPDX-License-Identifier: MIT
#include "preview/cut/cut_picture.h"
#include "preview/cut/frm_cut.h"
#include "preview/cut/play_bar.h"
#include "preview/cut/program_list.h"
#include "tests/preview/cut/badge.h"

#include <QLabel>
#include <QMouseEvent>
#include <QSlider>
#include <QTabWidget>
#include <QTest>

namespace torvik {
namespace {

class FrmCutTest : public testing::Test {
protected:
    FrmCutTest() {
        dialog.setAttribute(Qt::WA_DontShowOnScreen);
        dialog.show();
    }
    QPoint pixelOf(double x, double y) { return canvas.view().toPixels({x, y}).toPoint(); }
    void click(double x, double y) {
        QTest::mouseClick(&canvas, Qt::LeftButton, {}, pixelOf(x, y));
    }
    // The pointer of the test's screen does not tell that it moves.
    void pointAt(double x, double y, Qt::MouseButtons buttons = {}) {
        const QPointF pixel = pixelOf(x, y);
        QMouseEvent event(QEvent::MouseMove, pixel, canvas.mapToGlobal(pixel), Qt::NoButton,
                          buttons, {});
        QCoreApplication::sendEvent(&canvas, &event);
    }
    int lineShown() { return list.currentIndex().row() + 1; }
    int depthAt(double x, double y) {
        const sweep::Field& field = work->moment();
        return field.depths[field.at(field.grid.columnAt(x), field.grid.rowAt(y))];
    }

    std::shared_ptr<CutWork> work = sweptBadge();
    FrmCut dialog{work};
    CutCanvas& canvas = *dialog.findChild<CutCanvas*>("picCut");
    ProgramList& list = *dialog.findChild<ProgramList*>("lstProgram");
    PlayBar& bar = *dialog.findChild<PlayBar*>();
    QSlider& slider = *dialog.findChild<QSlider*>("sldPlay");
};

TEST_F(FrmCutTest, ClickingACutFindsItsLineAndDraggingDoesNot) {
    click(30, 30);
    EXPECT_EQ(lineShown(), 13);
    click(80, 30);
    EXPECT_EQ(lineShown(), 19);
    click(5, 5);
    EXPECT_EQ(lineShown(), 19) << "nothing was cut there";
    // By 10 mm, onto the slot again.
    const QPoint end = pixelOf(40, 30);
    QTest::mousePress(&canvas, Qt::LeftButton, {}, pixelOf(30, 30));
    pointAt(40, 30, Qt::LeftButton);
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, end);
    EXPECT_EQ(lineShown(), 19);
    canvas.zoom(4);
    const QPoint before = pixelOf(30, 30);
    QTest::mousePress(&canvas, Qt::LeftButton, {}, before);
    pointAt(40, 30, Qt::LeftButton);
    EXPECT_GT(pixelOf(30, 30).x(), before.x());
}

TEST_F(FrmCutTest, UnderThePointerAreDepthToolAndPen) {
    pointAt(80, 30);
    const QString text = dialog.findChild<QLabel*>("lblCutPlace")->text();
    for (const char* part : {"6.2 mm deep, through", "T2 10.0 mm", "Red", "line 19"})
        EXPECT_TRUE(text.contains(QLatin1String(part))) << text.toStdString();
    pointAt(5, 5);
    EXPECT_TRUE(dialog.findChild<QLabel*>("lblCutPlace")->text().endsWith("not cut"));
}

TEST_F(FrmCutTest, ChoosingALineGoesThere) {
    list.setCurrentIndex(list.model()->index(12, 0));
    EXPECT_EQ(lineShown(), 13);
    EXPECT_EQ(depthAt(30, 30), 100);
    EXPECT_EQ(depthAt(80, 30), 0) << "comes later";
    QTest::keyClick(&list, Qt::Key_Up);
    EXPECT_EQ(lineShown(), 12);
    EXPECT_EQ(depthAt(30, 30), 0);
}

// Hiding the picture hands the focus to the list, which must not choose a line then.
TEST_F(FrmCutTest, TheOtherTabShowsTheSameMoment) {
    EXPECT_EQ(lineShown(), 25) << "the last one";
    canvas.setFocus();
    dialog.findChild<QTabWidget*>()->setCurrentIndex(1);
    EXPECT_EQ(slider.value(), slider.maximum());
    EXPECT_EQ(depthAt(30, 30), 100);
}

TEST_F(FrmCutTest, ALineIsShownAsSoonAsThePieceIsThere) {
    const auto early = std::make_shared<CutWork>(pieceOfProgram(badgeProgram));
    FrmCut later(early);
    later.setAttribute(Qt::WA_DontShowOnScreen);
    later.show();
    later.showLine(13);
    auto& lines = *later.findChild<ProgramList*>();
    EXPECT_TRUE(QTest::qWaitFor([&] { return lines.isEnabled(); }));
    EXPECT_EQ(lines.currentIndex().row() + 1, 13);
    EXPECT_EQ(later.focusWidget(), &lines);
    const sweep::Field& field = early->moment();
    EXPECT_EQ(field.depths[field.at(field.grid.columnAt(30), field.grid.rowAt(30))], 100);
}

TEST_F(FrmCutTest, TheSliderShowsTheCutAsItGrows) {
    EXPECT_EQ(slider.value(), slider.maximum());
    const auto slot = [](const check::Move& move) { return move.line == 13; };
    const check::Moves& moves = work->piece().moves;
    const auto move = std::find_if(moves.begin(), moves.end(), slot) - moves.begin();
    bar.goTo(work->timeline().start(static_cast<std::size_t>(move)) + 1); // 10 of 40 mm
    EXPECT_EQ(lineShown(), 13);
    EXPECT_EQ(depthAt(20, 30), 100);
    EXPECT_EQ(depthAt(22, 30), 0);
    slider.setValue(0);
    EXPECT_EQ(depthAt(10, 30), 0);
}

TEST_F(FrmCutTest, SpacePlaysAndPauses) {
    QTest::keyClick(&canvas, Qt::Key_Space);
    EXPECT_TRUE(bar.isPlaying());
    EXPECT_TRUE(QTest::qWaitFor([this] { return bar.now() > 0; }));
    EXPECT_LT(bar.now(), work->timeline().seconds()) << "from the beginning again";
    QTest::keyClick(&canvas, Qt::Key_Space);
    const double now = bar.now();
    QTest::qWait(80);
    EXPECT_EQ(bar.now(), now);
}

TEST_F(FrmCutTest, KeysZoomAndMoveThePicture) {
    const double scale = canvas.view().scale();
    QTest::keyClick(&canvas, Qt::Key_Plus);
    EXPECT_GT(canvas.view().scale(), scale);
    const QPoint before = pixelOf(30, 30);
    QTest::keyClick(&canvas, Qt::Key_Right);
    EXPECT_LT(pixelOf(30, 30).x(), before.x());
    QTest::keyClick(&canvas, Qt::Key_0);
    EXPECT_EQ(canvas.view().scale(), scale);
}

TEST(ProgramListTest, ALineFarDownIsBroughtIntoSight) {
    std::string text;
    for (int i = 0; i < 30'000; ++i)
        text += "N1 G0 Z5.00\r\n";
    ProgramList list;
    list.setAttribute(Qt::WA_DontShowOnScreen);
    list.setText(text);
    list.show();
    list.showLine(29'000);
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.currentIndex())));
    list.resize(300, 90);
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualRect(list.currentIndex())));
}

TEST(PlayBarTest, LongProgramsAreToldInHours) {
    PlayBar bar;
    const auto told = [&](double seconds) {
        bar.setLength(seconds);
        bar.goTo(65);
        return bar.findChild<QLabel*>("lblPlayTime")->text().toStdString();
    };
    EXPECT_EQ(told(3599), "1:05 / 59:59");
    EXPECT_EQ(told(68407), "1:05 / 19:00:07");
}

TEST(CutWorkTest, EndingItStopsTheSweep) {
    CutPiece piece = pieceOfProgram(badgeProgram);
    const check::Moves once = piece.moves;
    while (piece.moves.size() < 1'000'000)
        piece.moves.insert(piece.moves.end(), once.begin(), once.end());
    const auto work = std::make_unique<CutWork>(std::move(piece));
    FrmCut early(std::make_shared<CutWork>(pieceOfProgram(badgeProgram)));
    EXPECT_FALSE(early.findChild<PlayBar*>()->isEnabled()) << "not ready yet";
    EXPECT_FALSE(early.findChild<ProgramList*>()->isEnabled());
}

TEST(CutWorkTest, AProgramThatNoControlKnowsShowsAnEmptyBillet) {
    CutPiece piece = pieceOfProgram("nothing of the kind");
    EXPECT_TRUE(piece.moves.empty());
    const auto work = std::make_shared<CutWork>(std::move(piece));
    QSignalSpy ended(work.get(), &CutWork::ended);
    ASSERT_TRUE(ended.wait());
    FrmCut dialog(work);
    dialog.setAttribute(Qt::WA_DontShowOnScreen);
    dialog.show();
    QTest::mouseClick(dialog.findChild<CutCanvas*>(), Qt::LeftButton);
    EXPECT_FALSE(dialog.findChild<PlayBar*>()->isEnabled());
}

} // namespace
} // namespace torvik
