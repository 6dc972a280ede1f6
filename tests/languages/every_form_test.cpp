// SPDX-License-Identifier: MIT
// Every form in German, and with texts that are 40 % longer than the English ones.
#include "app/readable_style.h"
#include "languages/language.h"
#include "languages/translator.h"
#include "tests/access/every_form.h"
#include "tests/access/seen.h"

#include <QRegularExpression>
#include <QStyleFactory>

#include <set>

namespace torvik {
namespace {

// Not Qt's own (QDialog, QPlatformTheme), nor that of texts that may be no words.
bool isOwnContext(const QString& context) {
    const bool isQts = context.size() > 1 && context[0] == u'Q' && context[1].isUpper();
    return !isQts && context != textContext;
}

// Notes what the program asks for and German lacks.
class Missing : public Translator {
public:
    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override {
        QString found = Translator::translate(context, sourceText, disambiguation, n);
        const QString source = QString::fromUtf8(sourceText);
        if (found.isEmpty() && isOwnContext(context) && !source.isEmpty())
            m_texts.insert(source.toStdString());
        return found;
    }
    const std::set<std::string>& texts() const { return m_texts; }

private:
    mutable std::set<std::string> m_texts;
};

// Letters with umlauts, two more for every five, behind what the text says.
class Longer : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText, const char*,
                      int) const override {
        const QString text = QString::fromUtf8(sourceText);
        static const QRegularExpression word("[a-z]{3}");
        if (!isOwnContext(context) || text.startsWith("Ctrl+") || !text.contains(word))
            return {};
        static const QString filling = QStringLiteral("äußerst ungewöhnliche Länge ");
        const qsizetype more = (text.size() * 2 + 4) / 5;
        return text + filling.repeated(static_cast<int>(more / filling.size() + 1)).left(more);
    }
};

class Spoken : public EveryForm {
protected:
    Spoken() { QApplication::setStyle(new ReadableStyle(QStyleFactory::create("Fusion"))); }
    ~Spoken() override { QApplication::setFont(m_usual); }
    void enlarge(double times) {
        QFont large = m_usual;
        large.setPointSizeF(times * m_usual.pointSizeF());
        QApplication::setFont(large);
    }

private:
    QFont m_usual = QApplication::font();
};

TEST_F(Spoken, IsAllTranslatedAndHasUniqueKeysInGerman) {
    Missing missing;
    ASSERT_TRUE(missing.loadOwnTexts("de"));
    QCoreApplication::installTranslator(&missing);
    visitAll([](QWidget& form) { expectKeysUnique(form); });
    QCoreApplication::removeTranslator(&missing);
    for (const std::string& text : missing.texts())
        ADD_FAILURE() << "not translated: " << text;
}

class Sized : public Spoken, public testing::WithParamInterface<int> {};

TEST_P(Sized, IsNotCutInGerman) {
    enlarge(GetParam());
    speak("de");
    visitAll(expectUncut);
    speak("en");
}

TEST_P(Sized, IsNotCutWithLongerTexts) {
    enlarge(GetParam());
    Longer longer;
    QCoreApplication::installTranslator(&longer);
    visitAll(expectUncut);
    QCoreApplication::removeTranslator(&longer);
}

INSTANTIATE_TEST_SUITE_P(Letters, Sized, testing::Values(1, 2));

} // namespace
} // namespace torvik
