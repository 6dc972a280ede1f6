// SPDX-License-Identifier: MIT
#include "check/findings.h"

#include "base/picture.h"

#include <algorithm>
#include <cmath>

namespace torvik::check {

void Findings::add(Kind kind, std::uint32_t line, std::vector<std::string> values, PenGroup group) {
    if (++m_counts[static_cast<std::size_t>(kind)] <= keptOfKind)
        m_kept.push_back({kind, line, std::move(values), group});
}

void Findings::forget(Kind kind) {
    std::erase_if(m_kept, [&](const Finding& finding) { return finding.kind == kind; });
    m_counts[static_cast<std::size_t>(kind)] = 0;
}

std::vector<Finding> Findings::byLine() const {
    std::vector<Finding> sorted = m_kept;
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
    return sorted;
}

std::size_t Findings::count(Kind kind) const {
    return m_counts[static_cast<std::size_t>(kind)];
}

std::size_t Findings::count(Level level) const {
    std::size_t sum = 0;
    for (const KindRow& row : kinds())
        if (row.level == level)
            sum += count(row.kind);
    return sum;
}

bool Findings::isGood() const {
    return count(Level::wrong) == 0 && count(Level::danger) == 0;
}

std::string sentenceOf(const Finding& finding) {
    std::string text;
    std::string_view rest = rowOf(finding.kind).sentence;
    for (auto open = rest.find('{'); open != rest.npos; open = rest.find('{')) {
        text += rest.substr(0, open);
        const auto value = static_cast<std::size_t>(rest[open + 1] - '1');
        text += value < finding.values.size() ? finding.values[value] : "?";
        rest.remove_prefix(open + 3);
    }
    return text.append(rest);
}

std::string shownText(std::string_view latin1) {
    constexpr std::size_t most = 40;
    std::string text;
    for (const char c : latin1.substr(0, most)) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || (byte >= 0x7F && byte < 0xA0)) {
            text += '?';
        } else if (byte < 0x80) {
            text += c;
        } else {
            text += static_cast<char>(0xC0 | (byte >> 6));
            text += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return latin1.size() > most ? text + "..." : text;
}

std::string heightText(double z) {
    return std::isfinite(z) ? formatFixed(z, 2) : "?";
}

std::string lengthText(double length) {
    return std::isfinite(length) ? formatFixed(length, 3) : "?";
}

} // namespace torvik::check
