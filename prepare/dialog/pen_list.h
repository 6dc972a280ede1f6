// SPDX-License-Identifier: MIT
// Which pen draws what: a row for each pen of the drawing, or for each colour of a picture, with
// the pen, 1 to 8, to choose.
#pragma once

#include "prepare/dialog/prepare_source.h"

#include <QTableWidget>

class QComboBox;

namespace torvik {

class PenList : public QTableWidget {
    Q_OBJECT

public:
    explicit PenList(QWidget* parent = nullptr);

    // Makes the rows anew where the drawing has other pens or colours than those on show.
    void setPens(const std::vector<SourcePen>& pens);

    // The box of each row.
    const std::vector<QComboBox*>& choices() const { return m_choices; }
    // What was chosen: pens by their numbers, and colours.
    std::map<int, int> pens() const;
    std::map<std::string, int> colours() const;

signals:
    // The user has chosen a pen.
    void changed();

private:
    bool shows(const std::vector<SourcePen>& pens) const;
    void addPen(int row, const SourcePen& pen);
    int chosen(std::size_t row) const;

    std::vector<SourcePen> m_pens;
    std::vector<QComboBox*> m_choices;
};

} // namespace torvik
