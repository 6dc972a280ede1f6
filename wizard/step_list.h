// SPDX-License-Identifier: MIT
// The six steps of the wizard with the current one marked. It shows, it never jumps.
#pragma once

#include <QFrame>

#include <array>

class QLabel;

namespace torvik {

class StepList : public QFrame {
    Q_OBJECT

public:
    static constexpr int stepCount = 6;

    explicit StepList(QWidget* parent = nullptr);

    // Marks the step, 1 to 6.
    void showStep(int step);

private:
    void keepRoomForBold();

    std::array<QLabel*, stepCount> m_labels{};
};

} // namespace torvik
