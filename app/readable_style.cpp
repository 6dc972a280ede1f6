// SPDX-License-Identifier: MIT
#include "app/readable_style.h"

#include "forms/contrast.h"
#include "forms/target_size.h"

#include <QStyleOption>
#include <QWidget>

namespace torvik {
namespace {

// Text on what is selected: the ground gives way or the text, whichever leaves the selection
// clearer against the window.
void makeSelectionReadable(QPalette& palette, QPalette::ColorGroup group) {
    const QColor window = palette.color(group, QPalette::Window);
    const QColor text = palette.color(group, QPalette::HighlightedText);
    const QColor ground =
        withContrast(palette.color(group, QPalette::Highlight), window, edgeContrast);
    palette.setColor(group, QPalette::Highlight, ground);
    if (contrast(ground, text) >= textContrast)
        return;
    const QColor moved = withContrast(ground, text, textContrast);
    if (contrast(moved, window) > contrast(ground, window))
        palette.setColor(group, QPalette::Highlight, moved);
    else
        palette.setColor(group, QPalette::HighlightedText, readableOn(ground));
}

void makeReadable(QPalette& palette, QPalette::ColorGroup group, QPalette::ColorRole role) {
    const QColor base = palette.color(group, QPalette::Base);
    const QColor shown = palette.color(group, role);
    const double share = shown.alphaF(); // what is not opaque lets the base through
    const auto over = [share](double part, double below) {
        return static_cast<float>(part * share + below * (1 - share));
    };
    const QColor opaque =
        QColor::fromRgbF(over(shown.redF(), base.redF()), over(shown.greenF(), base.greenF()),
                         over(shown.blueF(), base.blueF()));
    palette.setColor(group, role, withContrast(opaque, base, textContrast));
}

// What is disabled stays fainter than the rest, but an answer that cannot be changed can be read.
void makeDisabledReadable(QPalette& palette) {
    const std::pair<QPalette::ColorRole, QPalette::ColorRole> pairs[] = {
        {QPalette::WindowText, QPalette::Window},
        {QPalette::Text, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button}};
    for (const auto& [text, ground] : pairs) {
        const QColor shown = palette.color(QPalette::Disabled, text);
        palette.setColor(
            QPalette::Disabled, text,
            withContrast(shown, palette.color(QPalette::Disabled, ground), textContrast));
    }
}

// Styles draw an edge darker than the window; the window that they are told is lighter by as much.
QPalette withClearEdge(QPalette palette) {
    constexpr int darkening = 140; // per cent, what the style does to a window's colour
    constexpr double margin = 1.3; // some edges are drawn lighter again
    const QColor window = palette.color(QPalette::Window);
    const QColor edge = withContrast(window, window, edgeContrast * margin);
    palette.setColor(QPalette::Window, edge.lighter(darkening));
    return palette;
}

// The option with that palette, where it is of the kind; what is disabled stays as it is.
template <typename Option>
bool drawEdged(const QStyleOption* option, const auto& draw) {
    const auto* const known = qstyleoption_cast<const Option*>(option);
    if (known == nullptr || !(option->state & QStyle::State_Enabled))
        return false;
    Option edged = *known;
    edged.palette = withClearEdge(edged.palette);
    draw(&edged);
    return true;
}

} // namespace

void ReadableStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        makeSelectionReadable(palette, group);
        for (const auto role : {QPalette::Link, QPalette::LinkVisited, QPalette::PlaceholderText})
            makeReadable(palette, group, role);
    }
    makeDisabledReadable(palette);
}

void ReadableStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (widget->inherits("QTipLabel")) // on top: else X11 makes it twice and forgets the rest
        widget->setWindowFlags(widget->windowFlags() | Qt::WindowStaysOnTopHint |
                               Qt::WindowTransparentForInput);
}

// Icons that a style brings along for dialogs are black on a dark desktop, too.
int ReadableStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* data) const {
    return hint == SH_DialogButtonBox_ButtonsHaveIcons
               ? 0
               : QProxyStyle::styleHint(hint, option, widget, data);
}

void ReadableStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const {
    const auto draw = [&](const QStyleOption* shown) {
        QProxyStyle::drawPrimitive(element, shown, painter, widget);
    };
    bool isDrawn = false;
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
    case PE_PanelButtonCommand:
        isDrawn = drawEdged<QStyleOptionButton>(option, draw);
        break;
    case PE_PanelButtonTool:
        isDrawn = drawEdged<QStyleOptionToolButton>(option, draw);
        break;
    case PE_FrameLineEdit:
    case PE_Frame:
        isDrawn = drawEdged<QStyleOptionFrame>(option, draw);
        break;
    default:
        break;
    }
    if (!isDrawn)
        draw(option);
}

void ReadableStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
    const auto draw = [&](const QStyleOptionComplex* shown) {
        QProxyStyle::drawComplexControl(control, shown, painter, widget);
    };
    bool isDrawn = false;
    if (control == CC_SpinBox) // a combo box is drawn as a button or as a line edit
        isDrawn = drawEdged<QStyleOptionSpinBox>(option, draw);
    else if (control == CC_Slider)
        isDrawn = drawEdged<QStyleOptionSlider>(option, draw);
    if (!isDrawn)
        draw(option);
}

QSize ReadableStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                      const QSize& contents, const QWidget* widget) const {
    constexpr QSize least(leastTarget, leastTarget);
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_PushButton:
    case CT_ToolButton:
    case CT_CheckBox:
    case CT_RadioButton:
    case CT_LineEdit:
    case CT_ComboBox:
    case CT_SpinBox:
    case CT_TabBarTab:
    case CT_ItemViewItem:
    case CT_MenuBarItem:
        return size.expandedTo(least);
    case CT_MenuItem: {
        const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        const bool isLine =
            item != nullptr && item->menuItemType == QStyleOptionMenuItem::Separator;
        return isLine ? size : size.expandedTo(least);
    }
    default:
        return size;
    }
}

} // namespace torvik
