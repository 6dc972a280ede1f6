// SPDX-License-Identifier: MIT
#include "preview/cut/program_lines.h"

namespace torvik {

void ProgramLines::setText(std::string_view text) {
    beginResetModel();
    m_text = text;
    m_starts.assign(1, 0);
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t feed = text.find('\n', at);
        at = feed == std::string_view::npos ? text.size() : feed + 1;
        m_starts.push_back(at);
    }
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
    if (role != Qt::DisplayRole || !index.isValid() || index.row() >= rowCount())
        return {};
    const std::string_view text = line(index.row());
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace torvik
