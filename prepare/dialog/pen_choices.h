// SPDX-License-Identifier: MIT
// The controls of one pen of the source: which pen draws it, and where the tool runs. Lengths are
// mm; the diameter is typed or taken from a tool of the library.
#pragma once

#include "prepare/beside/run_options.h"
#include "prepare/dialog/prepare_source.h"

#include <QObject>

#include <optional>
#include <vector>

class QComboBox;
class QToolButton;

namespace torvik {

class MeasureBox;

// A tool that the workshop has.
struct LibraryTool {
    int number = 0;
    QString type;
    double diameter = 0;
};

class PenChoices : public QObject {
    Q_OBJECT

public:
    // Its controls carry the row's number in their names. They belong to whom they are shown in.
    PenChoices(int row, const SourcePen& pen, const QString& name,
               const std::vector<LibraryTool>& tools);

    QComboBox* penBox() const { return m_pen; }
    QComboBox* runBox() const { return m_run; }
    MeasureBox* toolBox() const { return m_tool; }
    QToolButton* libraryButton() const { return m_library; }

    int pen() const; // 0: none is chosen yet
    std::optional<PenRun> run() const;
    // Without a word to anyone.
    void setRun(const std::optional<PenRun>& run);

signals:
    void changed();

private:
    void buildPen(int row, const SourcePen& pen, const QString& name);
    void buildTool(int row, const QString& name, const std::vector<LibraryTool>& tools);
    void openTool();

    QComboBox* m_pen;
    QComboBox* m_run;
    MeasureBox* m_tool;
    QToolButton* m_library;
};

} // namespace torvik
