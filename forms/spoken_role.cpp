// SPDX-License-Identifier: MIT
#include "forms/spoken_role.h"

#include <QAccessibleWidget>
#include <QVariant>
#include <QWidget>

namespace torvik {
namespace {

constexpr const char* roleProperty = "spokenRole";

QAccessibleInterface* makeSpoken(const QString& /*className*/, QObject* object) {
    auto* const widget = qobject_cast<QWidget*>(object);
    const QVariant role = widget == nullptr ? QVariant() : widget->property(roleProperty);
    return role.isValid()
               ? new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()))
               : nullptr;
}

} // namespace

void setSpokenRole(QWidget& control, QAccessible::Role role) {
    static const bool isInstalled = (QAccessible::installFactory(makeSpoken), true);
    Q_UNUSED(isInstalled)
    // What a screen reader was told before, a label's text perhaps, is told again with the role.
    if (auto* const before = QAccessible::queryAccessibleInterface(&control))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(before));
    control.setProperty(roleProperty, static_cast<int>(role));
}

} // namespace torvik
