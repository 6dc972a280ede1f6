// SPDX-License-Identifier: MIT
#include "answers/saved_writer.h"

#include "answers/saved_text.h"
#include "base/errors.h"
#include "base/picture.h"

namespace torvik {

void SavedWriter::plainLine(std::string_view what, const std::string& value) {
    require(!value.empty() && savedDigest(value) == value, std::string(what) + " must be one line");
    m_text += value;
    endLine();
}

void SavedWriter::text(std::string_view, const std::string& value) {
    separate();
    m_text += '"';
    for (const char c : value)
        m_text.append(c == '"' ? 2 : 1, c);
    m_text += '"';
}

void SavedWriter::number(std::string_view, float value) {
    separate();
    m_text += formatGeneral(value);
}

void SavedWriter::whole(std::string_view, std::int16_t value) {
    separate();
    m_text += formatInteger(value);
}

void SavedWriter::flag(std::string_view, bool value) {
    separate();
    m_text += value ? "#TRUE#" : "#FALSE#";
}

void SavedWriter::wholeOfDrawing(std::string_view, std::size_t value) {
    separate();
    m_text += std::to_string(value);
}

void SavedWriter::endLine() {
    m_text += "\r\n";
    m_lineBegins = true;
}

void SavedWriter::finish() {
    require(m_text.size() <= maxSavedBytes, "the texts of the job are too long to be kept");
}

void SavedWriter::require(bool holds, std::string_view cause) {
    if (!holds)
        throw InvalidCall(std::string(cause));
}

void SavedWriter::separate() {
    if (!m_lineBegins)
        m_text += ',';
    m_lineBegins = false;
}

} // namespace torvik
