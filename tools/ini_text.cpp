// SPDX-License-Identifier: MIT
#include "tools/ini_text.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace torvik {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

char lowerCase(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

bool isControl(char c) {
    return (c >= 0 && c < ' ' && c != '\t') || c == '\x7F';
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

// On one line: a blank for each line break and each other control character.
std::string oneLine(std::string_view text) {
    std::string line;
    line.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i)
        if (!(text[i] == '\r' && text.substr(i + 1, 1) == "\n"))
            line += isControl(text[i]) ? ' ' : text[i];
    return line;
}

// The text inside the quotes, where the value is wholly in quotes.
std::optional<std::string> unquoted(std::string_view value) {
    if (value.size() < 2 || value.front() != '"' || value.back() != '"')
        return std::nullopt;
    value = value.substr(1, value.size() - 2);
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] == '"')
            return std::nullopt;
        if (value[i] == '\\') {
            if (i + 1 == value.size()) // it belongs to the last quote, which then ends nothing
                return std::nullopt;
            if (value[i + 1] == '\\' || value[i + 1] == '"')
                ++i;
        }
        text += value[i];
    }
    return text;
}

bool needsQuotes(std::string_view value) {
    const auto isEdge = [](char c) { return isBlank(c) || c == '"'; };
    return !value.empty() && (isEdge(value.front()) || isEdge(value.back()));
}

std::string quoted(std::string_view value) {
    std::string text = "\"";
    for (const char c : value) {
        if (c == '\\' || c == '"')
            text += '\\';
        text += c;
    }
    return text += '"';
}

bool startsEntry(std::string_view line) {
    return !line.empty() && line.front() != ';' && line.front() != '#' && line.front() != '[';
}

bool fitsName(std::string_view name) {
    return startsEntry(name) && trimmed(name) == name && name.find('=') == std::string_view::npos &&
           std::none_of(name.begin(), name.end(), isControl);
}

// The length of the first line with its end.
std::size_t lineLength(std::string_view text) {
    const auto end = text.find_first_of("\r\n");
    if (end == std::string_view::npos)
        return text.size();
    return end + (text.substr(end, 2) == "\r\n" ? 2 : 1);
}

std::string_view withoutLineEnd(std::string_view line) {
    return line.substr(0, line.find_first_of("\r\n"));
}

} // namespace

bool NameLess::operator()(std::string_view a, std::string_view b) const {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(),
                                        [](char x, char y) { return lowerCase(x) < lowerCase(y); });
}

IniText::IniText(std::string_view text, std::string_view section)
    : m_section(section), m_sectionEnd(m_lines.end()) {
    const std::string_view firstLine = text.substr(0, lineLength(text));
    if (const auto end = firstLine.find_first_of("\r\n"); end != std::string_view::npos)
        m_lineEnd = firstLine.substr(end);
    bool inSection = false;
    while (!text.empty()) {
        const auto length = lineLength(text);
        m_lines.emplace_back(text.substr(0, length));
        text.remove_prefix(length);
        std::string_view line = withoutLineEnd(m_lines.back());
        if (m_lines.size() == 1 && line.starts_with(byteOrderMark))
            line.remove_prefix(byteOrderMark.size());
        readLine(std::prev(m_lines.end()), trimmed(line), inSection);
    }
}

// The line's text comes without its end and the blanks round it.
void IniText::readLine(Line place, std::string_view line, bool& inSection) {
    if (line.starts_with('[')) {
        const std::string_view name = trimmed(line.substr(1, line.find(']') - 1));
        inSection = !NameLess()(name, m_section) && !NameLess()(m_section, name);
    }
    if (!inSection || line.empty())
        return;
    m_sectionEnd = place;
    const auto equals = line.find('=');
    if (!startsEntry(line) || equals == std::string_view::npos)
        return;
    const std::string name = oneLine(trimmed(line.substr(0, equals)));
    const std::string_view value = trimmed(line.substr(equals + 1));
    m_values[name] = oneLine(unquoted(value).value_or(std::string(value)));
    m_places[name] = place;
}

void IniText::addLine(std::string line) {
    const bool hasSection = m_sectionEnd != m_lines.end();
    const Line before = hasSection ? std::next(m_sectionEnd) : m_lines.end();
    if (before != m_lines.begin() && withoutLineEnd(*std::prev(before)) == *std::prev(before))
        *std::prev(before) += m_lineEnd;
    if (!hasSection) {
        if (!m_lines.empty())
            m_lines.push_back(m_lineEnd);
        m_lines.push_back("[" + m_section + "]" + m_lineEnd);
    }
    m_sectionEnd = m_lines.insert(before, std::move(line));
}

void IniText::setValue(std::string_view name, std::string_view value) {
    if (!fitsName(name))
        return;
    const std::string clean = oneLine(value);
    const auto present = m_values.find(name);
    if (present != m_values.end() && present->second == clean)
        return;
    const std::string spelling(present != m_values.end() ? std::string_view(present->first) : name);
    std::string line = spelling + "=" + (needsQuotes(clean) ? quoted(clean) : clean) + m_lineEnd;
    if (const auto place = m_places.find(name); place != m_places.end()) {
        *place->second = std::move(line);
    } else {
        addLine(std::move(line));
        m_places[spelling] = m_sectionEnd;
    }
    m_values[spelling] = clean;
}

std::string IniText::text() const {
    std::string whole;
    for (const std::string& line : m_lines)
        whole += line;
    return whole;
}

} // namespace torvik
