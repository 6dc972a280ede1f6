// SPDX-License-Identifier: MIT
// Every German text is there and says the same as the English one with the same parts.
#include <QDir>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <gtest/gtest.h>
#include <map>

namespace torvik {
namespace {

std::map<QString, QString> germanTexts() {
    QFile file(TORVIK_GERMAN);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    std::map<QString, QString> texts;
    QString source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"source") {
            source = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == u"comment") {
            source += u'|' + xml.readElementText(); // told apart by its note
        } else if (xml.isStartElement() && xml.name() == u"translation") {
            EXPECT_FALSE(xml.attributes().hasAttribute("type")) << source.toStdString();
            EXPECT_TRUE(texts.emplace(source, xml.readElementText()).second)
                << source.toStdString() << " stands there twice";
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return texts;
}

// The places for values: %1 and {1}, each once.
QStringList placesOf(const QString& text) {
    static const QRegularExpression place(R"(%\d|%n|\{\d\})");
    QStringList places;
    for (const auto& match : place.globalMatch(text))
        places += match.captured();
    places.sort();
    places.removeDuplicates();
    return places;
}

qsizetype keysOf(QString text) {
    return text.remove("&&").count(u'&');
}

TEST(GermanTexts, AreAllThereWithTheSameParts) {
    const std::map<QString, QString> texts = germanTexts();
    EXPECT_GT(texts.size(), 600U);
    for (const auto& [english, german] : texts) {
        SCOPED_TRACE(english.toStdString());
        EXPECT_FALSE(german.trimmed().isEmpty());
        EXPECT_EQ(placesOf(german), placesOf(english));
        EXPECT_EQ(keysOf(german), keysOf(english));
        EXPECT_EQ(german.count(u'\n'), english.count(u'\n'));
        EXPECT_EQ(german.endsWith(u'…'), english.endsWith(u'…'));
        EXPECT_EQ(german.endsWith(u' '), english.endsWith(u' '));
    }
}

// What the check says is made of pieces; each of them stands in a German row.
TEST(GermanTexts, HaveEveryPieceOfAFinding) {
    static const QRegularExpression other(R"(#include.*|'"')");
    static const QRegularExpression piece(R"re("([^"\n]*)")re");
    static const QRegularExpression word("[a-z]{3}");
    const QStringList toolTypes{"End mill", "Drill", "Reamer"}; // the same in every language
    QString english;
    for (const auto& row : germanTexts())
        english += row.first + u'\n';
    int pieces = 0;
    for (const char* folder : {TORVIK_CHECK, TORVIK_CHECK "/plan", TORVIK_CHECK "/sense"})
        for (const QString& name : QDir(folder).entryList(
                 {"*findings.cpp", "*_sense.cpp", "*words.cpp", "*reader.cpp", "check.cpp"})) {
            QFile code(QDir(folder).filePath(name));
            ASSERT_TRUE(code.open(QIODevice::ReadOnly));
            for (const auto& match :
                 piece.globalMatch(QString::fromUtf8(code.readAll()).remove(other)))
                if (const QString text = match.captured(1);
                    text.contains(word) && !toolTypes.contains(text)) {
                    ++pieces;
                    EXPECT_TRUE(english.contains(text)) << (name + ": " + text).toStdString();
                }
        }
    EXPECT_GT(pieces, 40);
}

} // namespace
} // namespace torvik
