// SPDX-License-Identifier: MIT
#include "forms/side_hint.h"

#include <QAccessible>
#include <QEvent>
#include <QScreen>
#include <QTimer>
#include <QToolTip>

#include <algorithm>

namespace torvik {
namespace {

constexpr int gap = 4;         // pixels to the box
constexpr int widestLine = 48; // letters

QRect onScreen(const QWidget& widget) {
    return {widget.mapToGlobal(QPoint(0, 0)), widget.size()};
}

} // namespace

void SideHint::showBeside(QWidget& box, const QString& text) {
    auto* hint = box.findChild<SideHint*>({}, Qt::FindDirectChildrenOnly);
    if (hint == nullptr)
        hint = new SideHint(box);
    hint->setText(text);
    const QFontMetrics letters = hint->fontMetrics();
    hint->setWordWrap(letters.horizontalAdvance(text) > widestLine * letters.averageCharWidth());
    hint->adjustSize();
    hint->move(hint->place());
    hint->show();
    hint->m_time->start(showTime);
    QAccessibleEvent said(hint, QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}

// One that does not stay on top is made twice on X11, and the second takes the mouse again.
SideHint::SideHint(QWidget& box)
    : QLabel(&box, Qt::ToolTip | Qt::WindowStaysOnTopHint | Qt::WindowTransparentForInput |
                       Qt::WindowDoesNotAcceptFocus),
      m_box(box), m_time(new QTimer(this)) {
    setObjectName(QStringLiteral("lblHint"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setTextFormat(Qt::PlainText);
    setFont(QToolTip::font());
    setPalette(QToolTip::palette());
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setFrameStyle(static_cast<int>(QFrame::Box) | QFrame::Plain);
    setMargin(3);
    setAutoFillBackground(true);
    m_time->setSingleShot(true);
    connect(m_time, &QTimer::timeout, this, &QWidget::hide);
    box.installEventFilter(this);
    box.window()->installEventFilter(this);
}

bool SideHint::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowDeactivate:
        hide();
        break;
    default:
        break;
    }
    return QLabel::eventFilter(watched, event);
}

QPoint SideHint::place() const {
    const QRect box = onScreen(m_box);
    const QRect right = rightOf(box);
    QRect above(QPoint(), size());
    above.moveBottomLeft(box.topLeft() - QPoint(0, gap));
    QRect below(QPoint(), size());
    below.moveTopLeft(box.bottomLeft() + QPoint(0, gap));
    QRect left = right;
    left.moveRight(box.left() - gap);
    for (const QRect& area : {right, above, left, below})
        if (isFree(area))
            return area.topLeft();
    return above.topLeft();
}

QRect SideHint::rightOf(const QRect& box) const {
    QRect area(QPoint(), size());
    area.moveCenter(box.center());
    area.moveLeft(box.right() + gap);
    for (const QLabel* label : m_box.parentWidget()->findChildren<QLabel*>()) {
        const QRect unit = onScreen(*label);
        if (label != this && label->isVisible() && unit.left() > box.right() &&
            unit.intersects(area))
            area.moveLeft(std::max(area.left(), unit.right() + gap));
    }
    return area;
}

// Whether the screen shows all of it and no control that takes the mouse lies below.
bool SideHint::isFree(const QRect& area) const {
    const auto controls = m_box.window()->findChildren<QWidget*>();
    return m_box.screen()->availableGeometry().contains(area) &&
           std::none_of(controls.begin(), controls.end(), [&](const QWidget* control) {
               return control != &m_box && control->isVisible() &&
                      (control->focusPolicy() & Qt::TabFocus) != 0 &&
                      !control->isAncestorOf(&m_box) && onScreen(*control).intersects(area);
           });
}

} // namespace torvik
