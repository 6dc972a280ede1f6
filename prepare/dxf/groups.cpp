// SPDX-License-Identifier: MIT
#include "prepare/dxf/groups.h"

#include "base/errors.h"

#include <charconv>

namespace torvik::dxf {
namespace {

constexpr int remarkCode = 999;
constexpr std::string_view binaryMark = "AutoCAD Binary DXF";
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t";

void refuseOtherForms(std::string_view bytes) {
    if (bytes.starts_with(binaryMark))
        throw RunTimeError("this is a binary DXF; save it as a DXF of text (ASCII, R12 to 2018)");
    // A DWG begins with its version, as in AC1015.
    if (bytes.starts_with("AC10") || bytes.starts_with("AC1."))
        throw RunTimeError("this is a DWG drawing; save it as a DXF of text (ASCII, R12 to 2018)");
}

class Lines {
public:
    explicit Lines(std::string_view bytes) : m_rest(bytes) {}

    bool atEnd() const { return m_rest.empty(); }
    long number() const { return m_number; } // of the line that was taken last

    std::string_view take() {
        const std::size_t end = m_rest.find('\n');
        std::string_view line = m_rest.substr(0, end);
        m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
        ++m_number;
        if (line.ends_with('\r'))
            line.remove_suffix(1);
        return line;
    }

private:
    std::string_view m_rest;
    long m_number = 0;
};

int codeOf(std::string_view line, long number) {
    const std::string_view digits = withoutBlanks(line);
    int code = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), code);
    if (error != std::errc() || end != digits.data() + digits.size())
        throw RunTimeError("line " + std::to_string(number) +
                           " is no group code; this is no DXF drawing, or a damaged one");
    return code;
}

} // namespace

std::string_view withoutBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

GroupList readGroups(std::string_view bytes) {
    if (bytes.starts_with(byteOrderMark))
        bytes.remove_prefix(byteOrderMark.size());
    refuseOtherForms(bytes);
    GroupList list;
    constexpr std::size_t usualBytes = 12;
    list.groups.reserve(bytes.size() / usualBytes);
    Lines lines(bytes);
    while (!lines.atEnd()) {
        const std::string_view first = lines.take();
        if (lines.atEnd() && withoutBlanks(first).empty())
            break;
        const int code = codeOf(first, lines.number());
        const std::string_view value = lines.take();
        if (code == kindCode) {
            const std::string_view kind = withoutBlanks(value);
            if (kind == "EOF") {
                list.isWhole = true;
                break;
            }
            list.groups.push_back({code, kind});
        } else if (code != remarkCode) {
            list.groups.push_back({code, value});
        }
    }
    return list;
}

} // namespace torvik::dxf
