// SPDX-License-Identifier: MIT
#include "prepare/dialog/measure_box.h"

#include <QWheelEvent>

namespace torvik {

MeasureBox::MeasureBox(const QString& name, const Range& range, double value, const QString& unit) {
    QLocale point = QLocale::c();
    point.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    setLocale(point);
    setObjectName(name);
    setDecimals(range.decimals);
    setRange(range.least, range.most);
    setSingleStep(range.step);
    setValue(value);
    if (!unit.isEmpty())
        setSuffix(QStringLiteral(" ") + unit);
    setFocusPolicy(Qt::StrongFocus);
}

QString MeasureBox::textFromValue(double value) const {
    QString text = locale().toString(value, 'f', decimals());
    if (text.contains(u'.')) {
        while (text.endsWith(u'0'))
            text.chop(1);
        if (text.endsWith(u'.'))
            text.chop(1);
    }
    return text;
}

void MeasureBox::wheelEvent(QWheelEvent* event) {
    if (hasFocus())
        QDoubleSpinBox::wheelEvent(event);
    else
        event->ignore();
}

} // namespace torvik
