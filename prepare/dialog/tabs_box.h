// SPDX-License-Identifier: MIT
// The tabs that hold a part in its place: which pen's outlines get them, which pen cuts the rest
// through. Lengths are mm.
#pragma once

#include "prepare/beside/run_options.h"

#include <QWidget>

#include <vector>

class QCheckBox;
class QComboBox;

namespace torvik {

class MeasureBox;

class TabsBox : public QWidget {
    Q_OBJECT

public:
    explicit TabsBox(QWidget* parent = nullptr);

    // None where they are not wanted.
    std::vector<Tabs> tabs() const;
    // Pens that suit the drawing, as long as the user has not asked for tabs.
    void propose(int outlines, int through);
    QWidget* lastControl() const;

signals:
    void changed();

private:
    void connectControls();

    QCheckBox* m_wanted;
    QComboBox* m_from;
    QComboBox* m_to;
    MeasureBox* m_count;
    MeasureBox* m_length;
};

} // namespace torvik
