// SPDX-License-Identifier: MIT
// The findings of a program, one below the other. One that is about a line of a program that can be
// looked at leads there.
#pragma once

#include "check/finding_rows.h"

#include <QWidget>

class QLabel;
class QVBoxLayout;

namespace torvik {

class FindingList : public QWidget {
    Q_OBJECT

public:
    explicit FindingList(QWidget* parent = nullptr);

    // In place of those before. Tab goes through them before it gets to `next`.
    void setRows(const std::vector<check::FindingRow>& rows, bool canLook, QWidget& next);

signals:
    void lineChosen(quint32 line); // of the program, from 1

private:
    QWidget* makeRow(const check::FindingRow& row, bool leads);

    QVBoxLayout* m_place;
    QWidget* m_rows = nullptr;
};

} // namespace torvik
