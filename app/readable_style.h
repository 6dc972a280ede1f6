// SPDX-License-Identifier: MIT
// The desktop's own style with colours and edges that can be told apart in light and dark: text on
// what is selected or disabled, links, hints in empty boxes, the edges of boxes and buttons. What
// is clicked is large enough to be hit, buttons of dialogs have no icons, and tips let every click
// through to the control below.
#pragma once

#include <QProxyStyle>

namespace torvik {

class ReadableStyle : public QProxyStyle {
public:
    using QProxyStyle::QProxyStyle;

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
};

} // namespace torvik
