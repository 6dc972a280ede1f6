// SPDX-License-Identifier: MIT
// The desktop's own style, but on a dark desktop with check boxes and radio buttons whose edge can
// be seen: styles draw it darker than the window. Tips let every click through to the control
// below.
#pragma once

#include <QProxyStyle>
#include <QStyleOptionButton>
#include <QWidget>

namespace torvik {

class IndicatorStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    using QProxyStyle::polish;
    void polish(QWidget* widget) override {
        QProxyStyle::polish(widget);
        if (widget->inherits("QTipLabel")) // on top: else X11 makes it twice and forgets the rest
            widget->setWindowFlags(widget->windowFlags() | Qt::WindowStaysOnTopHint |
                                   Qt::WindowTransparentForInput);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        const bool isIndicator =
            element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
        if (!isIndicator || button == nullptr || !isDark(button->palette))
            return QProxyStyle::drawPrimitive(element, option, painter, widget);
        QStyleOptionButton edged = *button;
        edged.palette.setColor(QPalette::Window, windowForEdge(button->palette));
        QProxyStyle::drawPrimitive(element, &edged, painter, widget);
    }

private:
    static bool isDark(const QPalette& palette) {
        return palette.color(QPalette::Window).lightness() <
               palette.color(QPalette::WindowText).lightness();
    }

    // The edge comes out halfway between window and text.
    static QColor windowForEdge(const QPalette& palette) {
        constexpr int darkening = 150; // per cent, what the style does to a window's colour
        const QColor window = palette.color(QPalette::Window);
        const QColor text = palette.color(QPalette::WindowText);
        return QColor((window.red() + text.red()) / 2, (window.green() + text.green()) / 2,
                      (window.blue() + text.blue()) / 2)
            .lighter(darkening);
    }
};

} // namespace torvik
