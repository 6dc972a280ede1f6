// SPDX-License-Identifier: MIT
// The lines of a program as rows of a list, made when they are seen: quick for 300 000 of them.
#pragma once

#include <QAbstractListModel>
#include <QSize>

#include <string_view>
#include <vector>

namespace torvik {

class ProgramLines : public QAbstractListModel {
public:
    explicit ProgramLines(QObject* parent = nullptr) : QAbstractListModel(parent) {}

    // The text (its bytes are Latin-1) must live as long as it is shown.
    // `character` is how large one is in pixels: all rows are as wide as the longest line with the
    // room for a line number before it.
    void setText(std::string_view text, QSize character);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    // From 0, without its end.
    std::string_view line(int row) const;
    int numberWidth() const { return m_numberWidth; } // pixels

private:
    std::string_view m_text;
    std::vector<std::size_t> m_starts; // of each line, and the end of the text
    QSize m_rowSize;
    int m_numberWidth = 0;
};

} // namespace torvik
