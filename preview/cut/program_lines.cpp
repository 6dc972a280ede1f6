// SPDX-License-Identifier: MIT
#include "preview/cut/program_lines.h"

#include <algorithm>

namespace torvik {
namespace {

constexpr std::size_t mostCharacters = 1000; // of a line that can be seen

} // namespace

void ProgramLines::setText(std::string_view text, QSize character) {
    beginResetModel();
    m_text = text;
    m_starts.assign(1, 0);
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t feed = text.find('\n', at);
        at = feed == std::string_view::npos ? text.size() : feed + 1;
        m_starts.push_back(at);
    }
    std::size_t longest = 0;
    for (std::size_t i = 1; i < m_starts.size(); ++i)
        longest = std::max(longest, m_starts[i] - m_starts[i - 1]);
    m_numberWidth = character.width() * static_cast<int>(QString::number(rowCount()).size() + 1);
    m_rowSize = {m_numberWidth +
                     character.width() * static_cast<int>(std::min(longest, mostCharacters) + 1),
                 character.height()};
    endResetModel();
}

int ProgramLines::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || m_starts.empty() ? 0 : static_cast<int>(m_starts.size()) - 1;
}

std::string_view ProgramLines::line(int row) const {
    const std::size_t start = m_starts[static_cast<std::size_t>(row)];
    std::string_view line =
        m_text.substr(start, m_starts[static_cast<std::size_t>(row) + 1] - start);
    while (line.ends_with('\n') || line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

QVariant ProgramLines::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    if (role == Qt::SizeHintRole)
        return m_rowSize;
    if (role != Qt::DisplayRole)
        return {};
    const std::string_view text = line(index.row());
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace torvik
