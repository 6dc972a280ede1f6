// SPDX-License-Identifier: MIT
// Every form, for somebody who sees badly or not at all, or has no mouse.
#include "app/readable_style.h"
#include "forms/contrast.h"
#include "tests/access/every_form.h"
#include "tests/access/heard.h"
#include "tests/access/seen.h"

#include <QStyleFactory>

namespace torvik {
namespace {

TEST_F(EveryForm, IsHeardAndReachedByTheKeyboard) {
    visitAll([](QWidget& form) {
        expectKeysUnique(form);
        expectHeard(form);
        expectTabGoesRound(form);
    });
}

class Styled : public EveryForm {
protected:
    Styled() { QApplication::setStyle(new ReadableStyle(QStyleFactory::create("Fusion"))); }
};

QPalette coloursOf(bool isDark) {
    if (!isDark)
        return QPalette(QColor(239, 239, 239));
    QPalette dark(QColor(49, 54, 59), QColor(42, 46, 50));
    dark.setColor(QPalette::Base, QColor(27, 30, 32));
    dark.setColor(QPalette::AlternateBase, QColor(35, 38, 41));
    dark.setColor(QPalette::Highlight, QColor(61, 174, 233));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    return dark;
}

// A light and a dark desktop, as the program's style takes their colours over.
class Theme : public Styled, public testing::WithParamInterface<bool> {
protected:
    Theme() {
        QPalette colours = coloursOf(GetParam());
        QApplication::style()->polish(colours);
        QApplication::setPalette(colours);
    }
};

TEST_P(Theme, CanBeReadOnEveryForm) {
    const QPalette palette = QApplication::palette();
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const auto colour = [&](QPalette::ColorRole role) { return palette.color(group, role); };
        EXPECT_GE(contrast(colour(QPalette::Highlight), colour(QPalette::HighlightedText)), 4.5);
        EXPECT_GE(contrast(colour(QPalette::Highlight), colour(QPalette::Window)), 3);
        EXPECT_GE(contrast(colour(QPalette::Link), colour(QPalette::Base)), 4.5);
    }
    const auto faint = [&](QPalette::ColorRole role) {
        return palette.color(QPalette::Disabled, role);
    };
    EXPECT_GE(contrast(faint(QPalette::WindowText), faint(QPalette::Window)), 4.5);
    EXPECT_GE(contrast(faint(QPalette::Text), faint(QPalette::Base)), 4.5);
    EXPECT_GE(contrast(faint(QPalette::ButtonText), faint(QPalette::Button)), 4.5);
    visitAll(expectContrast);
}

TEST_F(Styled, IsNotCutInLettersOfTwiceTheSize) {
    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(2 * usual.pointSizeF());
    QApplication::setFont(large);
    visitAll(expectUncut);
    QApplication::setFont(usual);
}

TEST_F(Styled, IsHitOnEveryForm) {
    visitAll(expectTargets);
}

INSTANTIATE_TEST_SUITE_P(, Theme, testing::Bool(),
                         [](const auto& theme) { return theme.param ? "Dark" : "Light"; });

} // namespace
} // namespace torvik
