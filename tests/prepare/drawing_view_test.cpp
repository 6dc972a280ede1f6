// SPDX-License-Identifier: MIT
// What the views of the dialog show, and how wheel, mouse and keys move them.
#include "prepare/dialog/before_after.h"
#include "prepare/dialog/pen_colour.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace torvik {
namespace {

Stroke line(int pen, Point from, Point to) {
    return {pen, from, {lineSegment(to)}};
}

// 40 by 30 mm: a red line below, a green arc over the top to the left, clockwise, and a blue circle
// to the right.
std::shared_ptr<const StrokePicture> sheet() {
    const Stroke strokes[] = {line(2, {0, 0}, {1600, 0}),
                              {3, {0, 800}, {arcSegment({0, 800}, {400, 800}, -90)}},
                              circleStroke(4, {1200, 600}, 200)};
    return std::make_shared<const StrokePicture>(pictureOf(strokes));
}

QRgb at(const QImage& image, double x, double y) {
    return image.pixel(static_cast<int>(x), static_cast<int>(y)) | 0xFF000000U;
}

TEST(StrokePicture, PaintsLinesAndArcsUpwardsInTheColoursOfTheirPens) {
    const StrokePicture picture = *sheet();
    EXPECT_EQ(picture.elements, 3U);
    EXPECT_EQ(picture.circles, 1U);
    EXPECT_EQ(picture.bounds, QRectF(0, 0, 40, 30));
    for (const double ratio : {1.0, 2.0}) {
        // 10 pixels for each mm, the middle of the drawing in the middle.
        const QImage image = paintPicture(picture, {10, {20, 15}}, {420, 320}, ratio, {});
        EXPECT_EQ(image.size(), QSize(420, 320) * ratio);
        const auto colour = [&](double x, double y) {
            return QColor(at(image, (10 + 10 * x) * ratio, (10 + 10 * (30 - y)) * ratio));
        };
        EXPECT_GT(colour(20, 0).red(), colour(20, 0).green() + 60);
        EXPECT_GT(colour(35, 15).blue(), colour(35, 15).green() + 60);
        const double s = 10 * std::sqrt(0.5);
        EXPECT_GT(colour(10 - s, 20 + s).green(), colour(10 - s, 20 + s).red() + 60);
        EXPECT_EQ(colour(10 - s, 20 - s), QColor(Qt::white)) << "the other half of the arc";
        EXPECT_EQ(colour(30, 12), QColor(Qt::white)) << "within the circle";
    }
}

TEST(StrokePicture, AStrokeOfManyPiecesIsPaintedWhole) {
    Stroke stroke{1, {0, 0}, {}};
    for (int i = 1; i <= 4000; ++i)
        stroke.segments.push_back(lineSegment({i * 1.0, i % 2 * 1.0}));
    const StrokePicture picture = pictureOf({&stroke, 1});
    EXPECT_GE(picture.chunks.size(), 4U);
    const QImage image = paintPicture(picture, {4, {50, 0}}, {400, 20}, 1, {});
    for (int x = 1; x < 399; ++x)
        EXPECT_NE(at(image, x, 10), 0xFFFFFFFFU) << x;
}

class ViewTest : public testing::Test {
protected:
    ViewTest() {
        views.resize(860, 460);
        views.setPictures(sheet(), sheet());
        views.show();
        QApplication::setActiveWindow(&views);
    }
    // The point of the drawing that lies at a point of the view.
    QPointF mmAt(const QPointF& pixel) {
        return before.place().transform(before.size()).inverted().map(pixel);
    }
    void wheel(const QPointF& where, int notches) {
        QWheelEvent event(where, before.mapToGlobal(where), {}, {0, notches * 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&before, &event);
    }

    BeforeAfter views;
    DrawingView& before = *views.findChild<DrawingView*>("picBefore");
    DrawingView& after = *views.findChild<DrawingView*>("picAfter");
};

TEST_F(ViewTest, TheWheelZoomsAboutTheMouseInBothViews) {
    const QPointF mouse(120, 200);
    const QPointF held = mmAt(mouse);
    const double scale = before.place().scale;
    wheel(mouse, 2);
    EXPECT_NEAR(before.place().scale, scale * 1.25 * 1.25, 1e-6);
    EXPECT_NEAR((mmAt(mouse) - held).manhattanLength(), 0, 1e-6);
    EXPECT_EQ(after.place(), before.place());
    wheel(mouse, -2);
    EXPECT_NEAR(before.place().scale, scale, 1e-6);
}

TEST_F(ViewTest, DraggingMovesAndADoubleClickShowsAllAgain) {
    const ViewPlace fitted = before.place();
    const QPoint grip(150, 150);
    const QPointF held = mmAt(grip);
    QTest::mousePress(&after, Qt::LeftButton, {}, grip);
    QTest::mouseMove(&after, grip + QPoint(30, -20));
    QTest::mouseRelease(&after, Qt::LeftButton, {}, grip + QPoint(30, -20));
    QTest::mouseMove(&after, grip + QPoint(90, 90)); // let go by now
    EXPECT_NEAR((mmAt(grip + QPoint(30, -20)) - held).manhattanLength(), 0, 1e-6);
    EXPECT_EQ(after.place(), before.place());
    QTest::mouseDClick(&before, Qt::LeftButton);
    EXPECT_EQ(before.place(), fitted);
}

TEST_F(ViewTest, AllOfTheDrawingShowsWhereItsCountsMakeOneViewNarrow) {
    QFont large = views.font(); // in which a word of a count and the button are wide
    large.setPointSizeF(3 * large.pointSizeF());
    views.setFont(large);
    views.setPictures(nullptr, nullptr);
    views.resize(250, 460);
    QCoreApplication::processEvents();
    views.setPictures(sheet(), sheet());
    QCoreApplication::processEvents();
    EXPECT_NE(before.width(), after.width());
    const QTransform shown = before.place().transform(before.size());
    EXPECT_TRUE(QRectF(before.rect()).contains(shown.mapRect(QRectF(0, 0, 40, 30))));
}

TEST_F(ViewTest, TheDrawingCannotBeLostOutOfSight) {
    const ViewPlace fitted = before.place();
    for (int i = 0; i < 50; ++i)
        QTest::keyClick(&before, Qt::Key_Right);
    EXPECT_NEAR(before.place().centre.x(), 40, 1e-6);
    QTest::keyClick(&before, Qt::Key_Plus);
    EXPECT_GT(before.place().scale, fitted.scale);
    QTest::keyClick(&before, Qt::Key_0);
    EXPECT_EQ(before.place(), fitted);
    wheel({1, 1}, -200);
    EXPECT_TRUE(
        QRectF(0, 0, 40, 30).adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(before.place().centre));
    EXPECT_GE(before.place().scale, 1e-3);
}

TEST_F(ViewTest, TheSameDrawingDoneAnewKeepsThePlaceAnotherIsFitted) {
    wheel({100, 100}, 3);
    const ViewPlace place = before.place();
    views.setPictures(sheet(), sheet());
    EXPECT_EQ(before.place(), place);
    const Stroke larger = line(1, {0, 0}, {9000, 9000});
    views.setPictures(std::make_shared<const StrokePicture>(pictureOf({&larger, 1})), nullptr);
    EXPECT_EQ(before.place().centre, QPointF(112.5, 112.5));
}

TEST_F(ViewTest, WhatIsPaintedFollowsAtOnceAndIsThenPaintedAnew) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return before.isPainted(); }));
    const auto onLine = [&](double x) {
        const QPointF pixel = before.place().transform(before.size()).map(QPointF(x, 0));
        return QColor(at(before.grab().toImage(), pixel.x(), pixel.y()));
    };
    const auto isRed = [](const QColor& c) { return c.red() > c.green() + 60; };
    EXPECT_TRUE(isRed(onLine(20)));
    QTest::keyClick(&before, Qt::Key_Right);
    EXPECT_FALSE(before.isPainted());
    EXPECT_TRUE(isRed(onLine(20))) << "what was painted before, moved";
    ASSERT_TRUE(QTest::qWaitFor([&] { return before.isPainted(); }));
    EXPECT_TRUE(isRed(onLine(20)));
}

} // namespace
} // namespace torvik
