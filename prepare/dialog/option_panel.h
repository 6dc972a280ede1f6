// SPDX-License-Identifier: MIT
// What the preparation may do, as a form. Lengths in mm, angles in degrees.
#pragma once

#include "prepare/prepare.h"

#include <QGroupBox>
#include <QVariantMap>

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;

namespace torvik {

class MeasureBox;
class TabsBox;

class OptionPanel : public QGroupBox {
    Q_OBJECT

public:
    explicit OptionPanel(QWidget* parent = nullptr);

    // All but the pens and what the source needs.
    PrepareOptions options() const;
    // What a drawing that leaves its size open is taken for, and the texts.
    SourceOptions sourceOptions() const;
    // What can be remembered, by the names of the controls.
    QVariantMap values() const;
    // Emits changed() once where something is another then.
    void setValues(const QVariantMap& values);
    // Offers the answers to what the drawing does not say about its size.
    void askForSize(SizeDoubt doubt);
    // Whether the drawing has layers that pens can be given to.
    void offerLayers(bool hasLayers);
    void proposeTabs(int outlines, int through);
    // The one that the tab key leaves the panel from.
    QWidget* lastControl() const;

signals:
    void changed();

private:
    void buildFitting(QFormLayout& form);
    void buildPlacing(QFormLayout& form);
    void buildOnRequest(QFormLayout& form);
    void buildSource(QFormLayout& form);
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
    QCheckBox* m_insideFirst;
    QComboBox* m_texts;
    QComboBox* m_penBy;
    QComboBox* m_size;
    QLabel* m_sizeLabel;
    QLabel* m_penByLabel;
    SizeDoubt m_doubt = SizeDoubt::none;
    TabsBox* m_tabs;
};

} // namespace torvik
