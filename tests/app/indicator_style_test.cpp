// SPDX-License-Identifier: MIT
#include "app/indicator_style.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QStyleFactory>

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>

namespace torvik {
namespace {

// How well two colours can be told apart, 1 to 21.
double contrast(QRgb a, QRgb b) {
    const auto light = [](QRgb colour) {
        const auto part = [](int value) { return std::pow(value / 255.0, 2.2); };
        return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) +
               0.0722 * part(qBlue(colour));
    };
    const auto [low, high] = std::minmax({light(a), light(b)});
    return (high + 0.05) / (low + 0.05);
}

template <typename Button>
QImage picture(const QPalette& palette, QStyle& style) {
    Button button;
    button.setStyle(&style);
    button.setPalette(palette);
    button.resize(button.sizeHint());
    return button.grab().toImage();
}

TEST(IndicatorStyle, ShowsTheEdgesOnADarkDesktopAndLeavesALightOneAsItIs) {
    IndicatorStyle style(QStyleFactory::create("Fusion"));
    const std::unique_ptr<QStyle> plain(QStyleFactory::create("Fusion"));
    const QPalette light(QColor(239, 239, 239));
    EXPECT_EQ(picture<QRadioButton>(light, style), picture<QRadioButton>(light, *plain));
    EXPECT_EQ(picture<QCheckBox>(light, style), picture<QCheckBox>(light, *plain));

    const QPalette dark(QColor(49, 54, 59), QColor(42, 46, 50));
    const QRgb around = dark.color(QPalette::Window).rgb();
    for (const QImage& shown :
         {picture<QRadioButton>(dark, style), picture<QCheckBox>(dark, style)}) {
        double best = 1;
        for (int x = 0; x < shown.width(); ++x)
            best = std::max(best, contrast(shown.pixel(x, shown.height() / 2), around));
        EXPECT_GT(best, 3);
    }
}

} // namespace
} // namespace torvik
