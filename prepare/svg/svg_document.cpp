// SPDX-License-Identifier: MIT
#include "prepare/svg/svg_document.h"

#include "base/errors.h"
#include "prepare/svg/svg_attributes.h"
#include "prepare/svg/svg_lengths.h"

#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <array>
#include <optional>
#include <utility>

namespace torvik {
namespace {

// What an element that is left out means for the drawing.
struct LeftOut {
    QStringView element;
    std::optional<Loss> loss;
};

constexpr std::array<LeftOut, 14> leftOut{{{u"text", Loss::text},
                                           {u"flowRoot", Loss::text},
                                           {u"textArea", Loss::text},
                                           {u"image", Loss::pictures},
                                           {u"foreignObject", Loss::pictures},
                                           {u"video", Loss::pictures},
                                           {u"clipPath", {}},
                                           {u"mask", {}},
                                           {u"pattern", {}},
                                           {u"marker", {}},
                                           {u"filter", {}},
                                           {u"font", {}},
                                           {u"metadata", {}},
                                           {u"script", {}}}};

// A property that an element asks for and that is not carried over.
struct LostProperty {
    QStringView name;
    Loss loss;
};

constexpr std::array<LostProperty, 6> lostProperties{{{u"clip-path", Loss::clipping},
                                                      {u"mask", Loss::effects},
                                                      {u"filter", Loss::effects},
                                                      {u"marker-start", Loss::symbols},
                                                      {u"marker-mid", Loss::symbols},
                                                      {u"marker-end", Loss::symbols}}};

const QSet<QString>& shapes() {
    static const QSet<QString> names{QStringLiteral("path"),    QStringLiteral("rect"),
                                     QStringLiteral("circle"),  QStringLiteral("ellipse"),
                                     QStringLiteral("line"),    QStringLiteral("polyline"),
                                     QStringLiteral("polygon"), QStringLiteral("use")};
    return names;
}

class DocumentReader {
public:
    DocumentReader(const QByteArray& bytes, SourceReport& report)
        : m_reader(bytes), m_writer(&m_document.text), m_report(report),
          m_styleNamesRect(namesRectInStyle(bytes)) {
        m_reader.setNamespaceProcessing(false);
    }

    SvgDocument read() {
        while (!m_reader.atEnd()) {
            m_reader.readNext();
            if (m_reader.isStartElement())
                startElement();
            else if (m_reader.isEndElement())
                endElement();
            else if (m_reader.isCharacters())
                m_writer.writeCharacters(withoutFonts(m_reader.text().toString()));
        }
        if (m_reader.hasError())
            throw RunTimeError("line " + std::to_string(m_reader.lineNumber()) + ": " +
                               m_reader.errorString().toStdString());
        return std::move(m_document);
    }

private:
    // A rule for rectangles would not find those that became paths.
    static bool namesRectInStyle(const QByteArray& bytes) {
        static const QRegularExpression rule(QStringLiteral("<style.*?\\brect\\b.*?</style"),
                                             QRegularExpression::DotMatchesEverythingOption);
        return bytes.contains("<style") && rule.match(QString::fromUtf8(bytes)).hasMatch();
    }

    // Texts are not drawn, and without them no fonts are needed.
    static QString withoutFonts(QString style) {
        static const QRegularExpression rule(QStringLiteral("\\bfont(-[a-z-]+)?\\s*:[^;}]*"));
        return style.contains(u"font") ? style.remove(rule) : style;
    }

    static QString localName(QStringView name) {
        return name.sliced(name.lastIndexOf(u':') + 1).toString();
    }

    void startElement() {
        const QString name = localName(m_reader.qualifiedName());
        if (m_depth == 0) {
            startRoot(name);
            return;
        }
        for (const LeftOut& element : leftOut) {
            if (element.element != name)
                continue;
            if (element.loss)
                m_report.lose(*element.loss);
            m_reader.skipCurrentElement();
            return;
        }
        ++m_depth;
        noteLostProperties();
        if (shapes().contains(name))
            ++m_report.instructions[name.toStdString()];
        if (name == u"rect" && !m_styleNamesRect && startRoundedRect())
            return;
        // What symbols hold is drawn where it is used, as any group's is.
        if (name == u"symbol")
            m_writer.writeStartElement(QStringLiteral("defs"));
        m_writer.writeStartElement(name == u"symbol" ? QStringLiteral("g")
                                                     : m_reader.qualifiedName().toString());
        for (const QXmlStreamAttribute& attribute : m_reader.attributes())
            writeAttribute(attribute);
    }

    void endElement() {
        --m_depth;
        m_writer.writeEndElement();
        if (localName(m_reader.qualifiedName()) == u"symbol")
            m_writer.writeEndElement();
    }

    void startRoot(const QString& name) {
        if (name != u"svg")
            throw RunTimeError("this is no SVG picture");
        ++m_depth;
        const QXmlStreamAttributes attributes = m_reader.attributes();
        readSize(attributes);
        m_document.keepsAspect =
            !valueOf(attributes, u"preserveAspectRatio").trimmed().startsWith(u"none");
        m_writer.writeStartElement(m_reader.qualifiedName().toString());
        for (const QXmlStreamAttribute& attribute : attributes) {
            const auto attributeName = attribute.qualifiedName();
            if (attributeName != u"width" && attributeName != u"height" &&
                attributeName != u"preserveAspectRatio")
                writeAttribute(attribute);
        }
    }

    // The size in mm by width and height, and by the view box where they say nothing.
    void readSize(const QXmlStreamAttributes& attributes) {
        static const QRegularExpression separators(QStringLiteral("[\\s,]+"));
        const QStringList numbers =
            valueOf(attributes, u"viewBox").toString().split(separators, Qt::SkipEmptyParts);
        QRectF& box = m_document.viewBox;
        if (numbers.size() == 4)
            box = {numbers[0].toDouble(), numbers[1].toDouble(), numbers[2].toDouble(),
                   numbers[3].toDouble()};
        auto width = svgLength(valueOf(attributes, u"width"), box.width());
        auto height = svgLength(valueOf(attributes, u"height"), box.height());
        if (box.width() > 0 && box.height() > 0) {
            if (!width && height)
                width = *height * box.width() / box.height();
            if (!height && width)
                height = *width * box.height() / box.width();
            m_document.sizeInMm =
                QSizeF(width.value_or(box.width()), height.value_or(box.height())) * mmPerUserUnit;
        } else if (width && height && *width > 0 && *height > 0) {
            box = {0, 0, *width, *height};
            m_document.sizeInMm = box.size() * mmPerUserUnit;
        } else {
            box = {};
        }
    }

    void noteLostProperties() {
        const QXmlStreamAttributes attributes = m_reader.attributes();
        const QStringView style = valueOf(attributes, u"style");
        for (const LostProperty& property : lostProperties) {
            const QString rule = property.name.toString() + u':';
            if (valueOf(attributes, property.name).contains(u"url(") ||
                style.contains(rule + QStringLiteral("url(")) ||
                style.contains(rule + QStringLiteral(" url(")))
                m_report.lose(property.loss);
        }
    }

    void writeAttribute(const QXmlStreamAttribute& attribute) {
        const QString name = attribute.qualifiedName().toString();
        QString value = attribute.value().toString();
        if (isSvgLength(name) && !value.isEmpty() && !value.back().isDigit())
            if (const auto length =
                    svgLength(value, wholeOfLength(name, m_document.viewBox.size())))
                value = svgNumber(*length);
        if (name == u"style")
            value = withoutFonts(value);
        if (!name.startsWith(u"font"))
            m_writer.writeAttribute(name, value);
    }

    // The renderer rounds the radii of corners to hundredths of the rectangle; a path is exact.
    bool startRoundedRect() {
        const QXmlStreamAttributes attributes = m_reader.attributes();
        const QString path = roundedRectPath(attributes, m_document.viewBox.size());
        if (path.isEmpty())
            return false;
        m_writer.writeStartElement(QStringLiteral("path"));
        m_writer.writeAttribute(QStringLiteral("d"), path);
        for (const QXmlStreamAttribute& attribute : attributes)
            if (!isSvgLength(attribute.qualifiedName()))
                writeAttribute(attribute);
        return true;
    }

    SvgDocument m_document;
    QXmlStreamReader m_reader;
    QXmlStreamWriter m_writer;
    SourceReport& m_report;
    bool m_styleNamesRect;
    int m_depth = 0;
};

} // namespace

SvgDocument readSvgDocument(const QByteArray& bytes, SourceReport& report) {
    return DocumentReader(bytes, report).read();
}

} // namespace torvik
