// SPDX-License-Identifier: MIT
// The list of a program's lines with their numbers, in which one line is highlighted. Choosing a
// line goes there.
#pragma once

#include "preview/cut/program_lines.h"

#include <QListView>

namespace torvik {

class ProgramList : public QListView {
    Q_OBJECT

public:
    explicit ProgramList(QWidget* parent = nullptr);

    void setText(std::string_view text);
    // Highlights a line, from 1, and brings it into sight. Tells nobody.
    void showLine(std::uint32_t line);

signals:
    void lineChosen(quint32 line); // by the user, from 1

protected:
    // The highlighted line stays in sight.
    void resizeEvent(QResizeEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    ProgramLines* m_lines;
    bool m_isShowing = false;
};

} // namespace torvik
