// SPDX-License-Identifier: MIT
// Which pen draws what and where its tool runs: a row for each pen of the drawing, or for each
// colour of a picture.
#pragma once

#include "prepare/dialog/pen_choices.h"

#include <QTableWidget>

#include <memory>
#include <set>

namespace torvik {

class PenList : public QTableWidget {
    Q_OBJECT

public:
    explicit PenList(std::vector<LibraryTool> tools, QWidget* parent = nullptr);

    // Makes the rows anew where the drawing has other pens or colours than those on show.
    void setPens(const std::vector<SourcePen>& pens);

    // The controls of all rows, as the tab key goes through them.
    std::vector<QWidget*> controls() const;
    // What was chosen: pens by their numbers, and colours.
    std::map<int, int> pens() const;
    std::map<std::string, int> colours() const;
    // By the pen that draws, 1 to 8.
    std::map<int, PenRun> runs() const;
    std::set<int> drawnBy() const; // 0 where none is chosen yet

signals:
    void changed();

private:
    bool shows(const std::vector<SourcePen>& pens) const;
    void addPen(int row, const SourcePen& pen);
    void setControl(int row, int column, QWidget& control);
    // A pen has one tool: all rows that it draws show it.
    void share(const PenChoices& from);

    std::vector<LibraryTool> m_tools;
    std::vector<SourcePen> m_pens;
    std::vector<std::unique_ptr<PenChoices>> m_rows;
};

} // namespace torvik
