// SPDX-License-Identifier: MIT
// A settings file's text: sections, and in each one line an entry, Name=value. The value goes to
// the end of its line, blanks round it removed, every character taken as it is. Only a value wholly
// in double quotes is unpacked (\\ and \" inside), and only one that begins or ends with a blank or
// a quote is written so. Names are the same in any case; of several alike the last counts. All that
// is not an entry of the section (comments from ";" or "#", other sections) is left as it stands.
#pragma once

#include <list>
#include <map>
#include <string>
#include <string_view>

namespace torvik {

// Orders names without regard to the case of A to Z.
struct NameLess {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
};

// One section of a text (UTF-8, lines ending in LF, CR LF or CR).
class IniText {
public:
    IniText(std::string_view text, std::string_view section);
    ~IniText() = default;
    IniText(const IniText&) = delete;
    IniText& operator=(const IniText&) = delete;

    using Values = std::map<std::string, std::string, NameLess>;
    const Values& values() const { return m_values; }

    // Rewrites the entry's line, or adds one at the end of the section. A line break or another
    // control character (but the tab) becomes a blank. A name that no line can hold is passed over.
    void setValue(std::string_view name, std::string_view value);

    // The whole text; lines that were not set are as they were, to the byte.
    std::string text() const;

private:
    using Line = std::list<std::string>::iterator;

    void readLine(Line place, std::string_view line, bool& inSection);
    void addLine(std::string line);

    std::string m_section;
    std::string m_lineEnd = "\n"; // the first one of the text
    std::list<std::string> m_lines;
    Values m_values;
    std::map<std::string, Line, NameLess> m_places;
    Line m_sectionEnd; // the section's last line that is not empty; m_lines.end(): no section
};

} // namespace torvik
