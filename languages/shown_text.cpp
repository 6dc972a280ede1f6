// SPDX-License-Identifier: MIT
#include "languages/shown_text.h"

#include "languages/plain_patterns.h"
#include "languages/translator.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <map>
#include <optional>
#include <string>

namespace torvik {
namespace {

constexpr qsizetype placeLength = 3; // "{1}"

QString exactText(std::string_view text) {
    return QCoreApplication::translate(textContext, std::string(text).c_str());
}

QString plain(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// Most patterns are told from the text by their ends.
bool hasEndsOf(const QString& text, const QString& pattern) {
    const qsizetype open = pattern.indexOf(u'{');
    return open < 0 ? text == pattern
                    : text.startsWith(QStringView(pattern).left(open)) &&
                          text.endsWith(QStringView(pattern).mid(pattern.lastIndexOf(u'}') + 1));
}

// What stands at each place of the pattern, where the text is made of it.
std::optional<std::map<QChar, QString>> valuesOf(const QString& text, const QString& pattern) {
    if (!hasEndsOf(text, pattern))
        return std::nullopt;
    QString expression;
    QString places;
    qsizetype from = 0;
    for (qsizetype open = pattern.indexOf(u'{'); open >= 0; open = pattern.indexOf(u'{', from)) {
        expression +=
            QRegularExpression::escape(pattern.mid(from, open - from)) + QStringLiteral("(.*?)");
        places += pattern[open + 1];
        from = open + placeLength;
    }
    expression += QRegularExpression::escape(pattern.mid(from));
    const QRegularExpressionMatch match =
        QRegularExpression(QRegularExpression::anchoredPattern(expression),
                           QRegularExpression::DotMatchesEverythingOption)
            .match(text);
    if (!match.hasMatch())
        return std::nullopt;
    std::map<QChar, QString> values;
    for (qsizetype i = 0; i < places.size(); ++i)
        values[places[i]] = match.captured(static_cast<int>(i) + 1);
    return values;
}

template <typename Show>
std::optional<QString> filled(std::string_view text, std::string_view pattern, Show show) {
    const auto values = valuesOf(plain(text), plain(pattern));
    if (!values)
        return std::nullopt;
    QString shown = exactText(pattern);
    for (qsizetype open = shown.indexOf(u'{'); open >= 0; open = shown.indexOf(u'{', open)) {
        const auto value = values->find(shown[open + 1]);
        const QString said = value == values->end() ? QString() : show(value->second.toStdString());
        shown.replace(open, placeLength, said);
        open += said.size();
    }
    return shown;
}

} // namespace

QString shownText(std::string_view text) {
    QString exact = exactText(text);
    if (exact != plain(text))
        return exact;
    for (const std::string_view pattern : plainPatterns)
        if (const auto shown = filled(text, pattern, shownText))
            return *shown;
    return exact;
}

QString shownFilled(std::string_view text, std::string_view pattern) {
    return filled(text, pattern, shownText).value_or(plain(text));
}

} // namespace torvik
