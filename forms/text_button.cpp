// SPDX-License-Identifier: MIT
#include "forms/text_button.h"

#include <QLabel>
#include <QStyleOptionFocusRect>
#include <QStylePainter>
#include <QVBoxLayout>

namespace torvik {
namespace {

constexpr int frame = 2; // pixels for the line that shows the focus

} // namespace

TextButton::TextButton(QLabel* label, const QString& plain) {
    setAccessibleName(plain);
    setFlat(true); // it looks like a line of text
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    label->setForegroundRole(QPalette::WindowText); // not that of a button
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, frame, 0, frame);
    layout->addWidget(label);
}

QSize TextButton::sizeHint() const {
    return layout()->totalSizeHint();
}

QSize TextButton::minimumSizeHint() const {
    return layout()->totalMinimumSize();
}

void TextButton::paintEvent(QPaintEvent* /*event*/) {
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.backgroundColor = palette().color(QPalette::Window);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

} // namespace torvik
