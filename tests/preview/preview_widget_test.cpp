// SPDX-License-Identifier: MIT
#include "preview/depths.h"
#include "preview/preview_widget.h"
#include "preview/scale_length.h"
#include "preview/scale_line.h"
#include "tests/base/temporary_folder.h"
#include "tests/preview/machined_job.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

#include <functional>
#include <gtest/gtest.h>
#include <set>

namespace torvik {
namespace {

class PreviewWidgetTest : public QObject, public testing::Test {
protected:
    PreviewWidgetTest() {
        preview.resize(700, 530);
        preview.setAttribute(Qt::WA_DontShowOnScreen);
        preview.show();
        read("SP1;PU400,400;PD4400,2400", {{1, 2}});
    }

    void read(const char* drawing, const std::vector<Group>& groups) {
        job = machinedDrawing(drawing, groups);
        preview.GetScale();
        preview.PlotLines();
    }
    // Counts the paintings of what is watched.
    bool eventFilter(QObject*, QEvent* event) override {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    QWidget* child(const char* name) { return preview.findChild<QWidget*>(name); }
    bool isBlank() {
        const QImage shown = child("picBack")->grab().toImage();
        QImage empty = shown.copy();
        empty.fill(Qt::white);
        return shown == empty;
    }
    std::vector<std::string> legend() {
        std::vector<std::string> texts;
        for (const Legend::Row& row : preview.findChild<Legend*>("lblDepths")->rows())
            texts.push_back(row.text.toStdString());
        return texts;
    }

    int paints = 0;
    Job job;
    ToolList tools = toolsOf({6, 3});
    std::vector<std::string> reports;
    Logger logger{{}, [this](const ErrorReport& report) { reports.push_back(report.message()); }};
    PreviewWidget preview{job, tools, logger};
};

TEST_F(PreviewWidgetTest, ThePictureIsSizedAndCentred) {
    const QWidget* back = child("picBack");
    const QRect plot = child("picPlot")->geometry();
    EXPECT_EQ(plot.width(), back->width());
    EXPECT_EQ(plot.height(), std::lround((back->width() - 16) / 2.0 + 16));
    EXPECT_NEAR(plot.center().y(), back->rect().center().y(), 1);
    EXPECT_EQ(child("picPlot")->property("helpContext").toInt(), 10);
}

TEST_F(PreviewWidgetTest, ThePieceFitStaysInForceUntilTheNextDrawing) {
    const float lines = preview.fit().gsngScale;
    const QRect plot = child("picPlot")->geometry();
    preview.DrawPiece();
    const float piece = preview.fit().gsngScale;
    EXPECT_FLOAT_EQ(piece, lines * 100 / 106);
    EXPECT_EQ(child("picPlot")->geometry(), plot);
    preview.PlotLines();
    EXPECT_EQ(preview.fit().gsngScale, piece);
    preview.resize(720, 530);
    EXPECT_FLOAT_EQ(preview.fit().gsngScale,
                    static_cast<float>((child("picBack")->width() - 16) * 15) / 106);
    preview.GetScale();
    EXPECT_GT(preview.fit().gsngScale, piece * 106 / 100);
}

TEST_F(PreviewWidgetTest, TheScaleBarIsAsLongAsItSaysInEveryFit) {
    const auto& line = *preview.findChild<ScaleLine*>("picScale");
    const auto expectTrue = [&] {
        EXPECT_EQ(line.accessibleName(), "Drawing, 100.0 mm wide, 50.0 mm high");
        EXPECT_EQ(line.barLength(), 20);
        EXPECT_NEAR(line.barPixels(), 20 * preview.fit().gsngScale / 15, 0.5);
    };
    expectTrue();
    preview.DrawPiece();
    expectTrue();
    preview.resize(640, 500);
    expectTrue();
    preview.resize(220, 500); // the bar and its text have less room, but some
    EXPECT_GE(line.barPixels(), 12);
    EXPECT_NEAR(line.barPixels(), line.barLength() * preview.fit().gsngScale / 15, 0.5);
    preview.resize(120, 500);
    EXPECT_EQ(line.barPixels(), 0);
    preview.clear();
    EXPECT_EQ(line.accessibleName(), "");
}

TEST(ScaleBar, IsARoundLength) {
    struct Row {
        double most;
        double length;
    };
    for (const Row& row : {Row{1, 1}, Row{1.99, 1}, Row{2, 2}, Row{49, 20}, Row{50, 50},
                           Row{999, 500}, Row{0.3, 0.2}, Row{0, 0}, Row{-4, 0}})
        EXPECT_DOUBLE_EQ(roundLength(row.most), row.length) << row.most;
}

TEST_F(PreviewWidgetTest, BothPartsOfTheFrameShowThePicture) {
    // The groove is wider than the picture is high, and goes on above it.
    read("SP1;PU400,800;PD1200,800", {{1, 2}});
    preview.DrawPiece();
    const QRect plot = child("picPlot")->geometry();
    ASSERT_EQ(plot.height(), 16);
    EXPECT_EQ(child("picPlot")->grab().toImage().pixel(plot.width() / 2, 2), 0xFFC0C0C0);
    EXPECT_EQ(child("picBack")->grab().toImage().pixel(plot.center().x(), plot.top() - 20),
              0xFFC0C0C0);
}

TEST_F(PreviewWidgetTest, TheLegendListsTheDepthsAndGoesWithThePiece) {
    read("SP1;PD4000,0;SP2;PU0,2000;PD4000,2000;SP3;PU0,1000;PD4000,1000;SP4;PU0,100;PD40,100",
         {{1, 1}, {1, 5}, {1, 3}, {2, 3}});
    preview.DrawPiece();
    EXPECT_EQ(legend(), (std::vector<std::string>{"1.00 mm", "3.00 mm", "5.00 mm"}));
    EXPECT_EQ(preview.findChild<Legend*>("lblDepths")->rows()[1].colour, 112 * 0x010101);
    EXPECT_FALSE(child("lblLegend")->isHidden());
    preview.PlotLines();
    EXPECT_TRUE(legend().empty());
    EXPECT_TRUE(child("lblLegend")->isHidden());
}

TEST_F(PreviewWidgetTest, ALegendOfManyDepthsScrollsByKeysAndCutsNothingOff) {
    DepthList depths;
    for (int i = 1; i <= 20; ++i)
        SaveDepth(depths, static_cast<float>(i) + 99.25F);
    Legend legend;
    legend.setAttribute(Qt::WA_DontShowOnScreen);
    legend.setDepths(depths, 100, 120);
    for (const QSize size : {QSize(legend.stripWidth(), 200), QSize(300, 73), QSize(310, 76)}) {
        SCOPED_TRACE(size.width());
        legend.resize(size);
        legend.show();
        EXPECT_NE(legend.focusPolicy(), Qt::NoFocus);
        std::set<QString> seen;
        for (int step = 0; step < 20; ++step, QTest::keyClick(&legend, Qt::Key_Down)) {
            for (const Legend::Row& row : legend.rowsInSight())
                seen.insert(row.text);
            const QImage shown = legend.viewport()->grab().toImage();
            for (int x = 0; x < shown.width(); ++x)
                ASSERT_EQ(shown.pixel(x, shown.height() - 1), shown.pixel(0, 0)) << x;
            for (int y = 0; y < shown.height(); ++y)
                ASSERT_EQ(shown.pixel(shown.width() - 1, y), shown.pixel(0, 0)) << y;
        }
        EXPECT_EQ(seen.size(), 20U);
        QTest::keyClick(&legend, Qt::Key_Home);
        EXPECT_EQ(legend.rowsInSight().front().text, "100.25 mm");
    }
    legend.resize(400, 600);
    EXPECT_EQ(legend.focusPolicy(), Qt::NoFocus);
}

TEST_F(PreviewWidgetTest, ThePieceIsWholeInTheMiddleWhateverBecomesOfTheDrawing) {
    tools = toolsOf({20});
    read("SP1;PU800,0;PD800,400", {{1, 2}});
    preview.DrawPiece();
    job = {};
    for (const QSize size : {QSize(700, 500), QSize(400, 700)}) {
        preview.resize(size);
        const QImage shown = child("picBack")->grab().toImage();
        QRect piece;
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                if (shown.pixel(x, y) != 0xFFFFFFFF)
                    piece |= QRect(x, y, 1, 1);
        EXPECT_TRUE(shown.rect().adjusted(7, 7, -7, -7).contains(piece));
        EXPECT_NEAR(piece.height(), piece.width() * 1.5, 3);
        EXPECT_NEAR(piece.center().x(), shown.rect().center().x(), 1);
        EXPECT_NEAR(piece.center().y(), shown.rect().center().y(), 1);
    }
}

TEST_F(PreviewWidgetTest, TheLegendNeverCoversTheDrawing) {
    preview.DrawPiece();
    for (const QSize size : {QSize(300, 250), QSize(400, 700), QSize(2400, 1800)}) {
        preview.resize(size.width(), size.height());
        EXPECT_FALSE(child("picBack")->geometry().intersects(child("picLegend")->geometry()));
        EXPECT_TRUE(child("picBack")->rect().contains(child("picPlot")->geometry()));
        EXPECT_TRUE(preview.rect().contains(child("picLegend")->geometry()));
        EXPECT_GT(preview.fit().gsngScale, 0);
    }
}

TEST_F(PreviewWidgetTest, WhatWasClearedStaysEmptyAtAnySize) {
    EXPECT_FALSE(isBlank());
    preview.clear();
    EXPECT_FALSE(child("lblNoDrawing")->isHidden());
    child("lblNoDrawing")->hide(); // its own text is no drawing
    EXPECT_TRUE(isBlank());
    preview.resize(500, 450);
    EXPECT_TRUE(isBlank());
    preview.PlotLines();
    EXPECT_FALSE(isBlank());
    EXPECT_TRUE(child("lblNoDrawing")->isHidden());
}

TEST_F(PreviewWidgetTest, AGroupWithoutAToolIsReportedAndLeavesTheFrameEmpty) {
    preview.DrawPiece();
    job.answers.gudtSettings[1].intTool = 0;
    preview.DrawPiece();
    EXPECT_EQ(reports,
              std::vector<std::string>{"An error has occurred in GetPieceScale (modHpgl):\n"
                                       "the Black lines have no tool."});
    EXPECT_TRUE(isBlank());
}

TEST_F(PreviewWidgetTest, ABlinkThatFailsIsLoggedOnceAndNotReported) {
    const TemporaryFolder folder;
    const auto log = folder.file("preview.log", "");
    logger = Logger(log, [](const ErrorReport&) { FAIL(); });
    for (int tick = 0; tick < 3; ++tick)
        preview.plotBlink({7}, false);
    std::ifstream lines(log);
    EXPECT_EQ(std::count(std::istreambuf_iterator<char>(lines), {}, '\n'), 1);
}

// Painted in the background; the window closes while a picture is on its way.
TEST_F(PreviewWidgetTest, AThousandfoldDrawingLooksAsASingleOne) {
    std::string drawing = "SP1;PU400,400;PD4400,2400;PU400,600;PD440,640;";
    read(drawing.c_str(), {{1, 2}});
    const QImage lines = preview.picture();
    preview.DrawPiece();
    QCoreApplication::processEvents(); // the legend takes its room
    const QImage piece = preview.picture();
    for (int i = 0; i < 2000; ++i)
        drawing += "PU400,600;PD440,640;";
    const auto becomes = [&](const QImage& image) {
        return QTest::qWaitFor([&] { return preview.picture() == image; });
    };
    read(drawing.c_str(), {{1, 2}});
    EXPECT_TRUE(becomes(lines));
    preview.plotBlink({2}, false);
    EXPECT_TRUE(becomes(lines));
    preview.DrawPiece();
    EXPECT_TRUE(becomes(piece));
    preview.resize(600, 400);
    EXPECT_TRUE(QTest::qWaitFor([&] { return preview.picture().width() < piece.width(); }));
    preview.resize(700, 530);
    preview.picture();
}

TEST_F(PreviewWidgetTest, EveryNewPictureComesToTheScreen) {
    preview.setAttribute(Qt::WA_DontShowOnScreen, false);
    preview.hide();
    preview.show();
    child("picPlot")->installEventFilter(this);
    const std::pair<const char*, std::function<void()>> changes[] = {
        {"the drawing", [&] { preview.PlotLines(); }},
        {"the lines go", [&] { preview.plotBlink({1}, false); }},
        {"and come back", [&] { preview.plotBlink({1}, true); }},
        {"one is erased", [&] { preview.DrawLine(1, 1); }},
        {"the piece", [&] { preview.DrawPiece(); }},
    };
    for (const auto& [says, change] : changes) {
        QCoreApplication::processEvents();
        paints = 0;
        change();
        QCoreApplication::processEvents();
        EXPECT_GT(paints, 0) << says;
    }
}

} // namespace
} // namespace torvik
