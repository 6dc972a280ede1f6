// SPDX-License-Identifier: MIT
// The line in the status bar that says how much of the drawing was not read, and the dialog that it
// opens: the one that makes drawings of other programs readable.
#pragma once

#include "wizard/host/workshop.h"

#include <QWidget>

#include <filesystem>

class QPushButton;

namespace torvik {

class StatusLines;

class SkippedLine : public QWidget {
    Q_OBJECT

public:
    SkippedLine(Workshop& workshop, StatusLines& lines);

    // Says how many instructions were not read; 0 hides the line.
    void show(long instructions);
    // Opens the dialog with the drawing that is named (dropped) or else the one that is open.
    void PrepareDrawing(const std::filesystem::path& source = {});

signals:
    // A drawing was saved in the dialog, and the user wants it open.
    void drawingPrepared(const std::filesystem::path& drawing);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildButton();
    void breakLine();

    Workshop& m_workshop;
    QPushButton* m_skipped = nullptr;
    QString m_text; // in one line
};

} // namespace torvik
