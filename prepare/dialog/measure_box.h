// SPDX-License-Identifier: MIT
// A number box with a unit: always the decimal point, whatever the country, and no needless zeros.
#pragma once

#include <QDoubleSpinBox>

namespace torvik {

class MeasureBox : public QDoubleSpinBox {
public:
    struct Range {
        double least;
        double most;
        double step;
        int decimals;
    };

    MeasureBox(const QString& name, const Range& range, double value, const QString& unit);

    QString textFromValue(double value) const override;

protected:
    // Only where the box has the focus: the wheel is for what lies below the mouse.
    void wheelEvent(QWheelEvent* event) override;
};

} // namespace torvik
