// SPDX-License-Identifier: MIT
// The line in the status bar that says how much of the drawing was not read, and the dialog that it
// opens: the one that makes drawings of other programs readable.
#pragma once

#include "wizard/host/workshop.h"

#include <QWidget>

#include <filesystem>

class QPushButton;
class QStatusBar;

namespace torvik {

class SkippedLine : public QWidget {
    Q_OBJECT

public:
    SkippedLine(Workshop& workshop, QStatusBar& bar);

    // Says how many instructions were not read; 0 hides the status bar.
    void show(long instructions);
    // Opens the dialog with the drawing that is named (dropped) or else the one that is open.
    void PrepareDrawing(const std::filesystem::path& source = {});

signals:
    // A drawing was saved in the dialog, and the user wants it open.
    void drawingPrepared(const std::filesystem::path& drawing);

private:
    void buildButton();

    Workshop& m_workshop;
    QStatusBar& m_bar;
    QPushButton* m_skipped = nullptr;
};

} // namespace torvik
