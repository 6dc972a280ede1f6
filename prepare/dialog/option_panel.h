// SPDX-License-Identifier: MIT
// What the preparation may do, as a form. Lengths in mm, angles in degrees.
#pragma once

#include "prepare/prepare.h"

#include <QGroupBox>

class QCheckBox;
class QComboBox;
class QFormLayout;

namespace torvik {

class MeasureBox;

class OptionPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit OptionPanel(QWidget* parent = nullptr);

    // All but the pens.
    PrepareOptions options() const;
    // The one that the tab key leaves the panel from.
    QWidget* lastControl() const;

signals:
    void changed();

private:
    void buildFitting(QFormLayout& form);
    void buildPlacing(QFormLayout& form);
    void buildOnRequest(QFormLayout& form);
    void connectControls();

    MeasureBox* m_tolerance;
    MeasureBox* m_roundTurn;
    QCheckBox* m_arcs;
    QCheckBox* m_duplicates;
    QCheckBox* m_optimize;
    MeasureBox* m_scale;
    QComboBox* m_mirror;
    QComboBox* m_rotate;
    QCheckBox* m_moved;
    MeasureBox* m_originX;
    MeasureBox* m_originY;
    QCheckBox* m_drawDots;
    MeasureBox* m_dots;
};

} // namespace torvik
