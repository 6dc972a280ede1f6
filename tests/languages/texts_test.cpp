// SPDX-License-Identifier: MIT
// Every German text is there and says the same as the English one with the same parts.
#include <QFile>
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

} // namespace
} // namespace torvik
