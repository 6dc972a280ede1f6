// SPDX-License-Identifier: MIT
#include "sheet/sheet_page.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>
#include <array>

namespace torvik {
namespace {

// Tenths of a millimetre.
constexpr double left = 120;
constexpr double right = 1980;
constexpr double top = 110;
constexpr double signLine = 2800;
constexpr double listsEnd = 2690;
constexpr double rowHeight = 40;
constexpr double listGap = 24;
constexpr std::size_t mostOrder = 12;
constexpr std::size_t mostTools = 8;

const QColor ink{0x20, 0x20, 0x20};
const QColor quietInk{0x60, 0x60, 0x60};
const QColor badInk{0xA8, 0x1C, 0x1C};
const QColor line{0xB0, 0xB0, 0xB0};
const QColor band{0xF0, 0xF0, 0xF0};

QString tr(const char* text) {
    return QCoreApplication::translate("JobSheet", text);
}

struct Column {
    double width;
    Qt::Alignment alignment;
};

constexpr std::array<Column, 9> orderColumns{{{45, Qt::AlignLeft},
                                              {290, Qt::AlignLeft},
                                              {375, Qt::AlignLeft},
                                              {160, Qt::AlignRight},
                                              {195, Qt::AlignRight},
                                              {190, Qt::AlignRight},
                                              {115, Qt::AlignRight},
                                              {270, Qt::AlignRight},
                                              {220, Qt::AlignRight}}};
constexpr std::array<Column, 3> toolColumns{
    {{50, Qt::AlignLeft}, {700, Qt::AlignLeft}, {220, Qt::AlignLeft}}};

class Page {
public:
    explicit Page(QPainter& painter) : m_painter(painter) { m_painter.setPen(ink); }

    void head(const SheetContent& content) {
        setFont(60, true);
        text(QRectF(left, m_y, 1250, 80), content.title, Qt::AlignLeft);
        setFont(28, false);
        m_painter.setPen(quietInk);
        text(QRectF(1380, m_y, right - 1380, 40), tr("Job sheet"), Qt::AlignRight);
        m_painter.setPen(ink);
        setFont(30, true);
        text(QRectF(1280, m_y + 40, right - 1280, 44), content.program, Qt::AlignRight);
        m_y += 96;
        rule(m_y, 4, ink);
        m_y += 20;
    }

    // Three beside each other.
    void fields(const std::vector<SheetField>& fields) {
        constexpr std::size_t beside = 3;
        constexpr double width = (right - left) / beside;
        for (std::size_t i = 0; i < fields.size(); ++i) {
            const double x = left + width * static_cast<double>(i % beside);
            setFont(23, false);
            m_painter.setPen(quietInk);
            text(QRectF(x, m_y, width - 20, 30), fields[i].caption, Qt::AlignLeft);
            setFont(30, false);
            m_painter.setPen(ink);
            text(QRectF(x, m_y + 28, width - 20, 42), fields[i].value, Qt::AlignLeft);
            if (i % beside == beside - 1 || i + 1 == fields.size())
                m_y += 80;
        }
        m_y += 8;
    }

    void pictures(const SheetPictures& pictures) {
        constexpr double width = 10 * sheetPictureWidth;
        constexpr double height = 10 * sheetPictureHeight;
        picture(QRectF(left, m_y, width, height), pictures.drawing, tr("The drawing"));
        picture(QRectF(right - width, m_y, width, height), pictures.piece,
                tr("The piece as the program cuts it"));
        m_y += height + 36 + listGap;
    }

    template <std::size_t count>
    void table(const QString& title, const QStringList& heads, const std::vector<QStringList>& rows,
               const std::array<Column, count>& columns, std::size_t room) {
        heading(title);
        if (!heads.isEmpty()) {
            m_painter.fillRect(QRectF(left, m_y, right - left, rowHeight), band);
            setFont(23, false);
            m_painter.setPen(quietInk);
            row(heads, columns);
            m_painter.setPen(ink);
        }
        setFont(25, false);
        const std::size_t shown = rowsShown(rows.size(), room);
        for (std::size_t i = 0; i < shown; ++i)
            row(rows[i], columns);
        if (shown < rows.size())
            moreLine(andMore(rows.size(), shown));
        m_y += listGap;
    }

    // As many as there is room for, the longer ones in two lines.
    void findings(const SheetContent& content) {
        heading(tr("What the check found"));
        setFont(25, false);
        const auto& all = content.findings;
        if (all.empty())
            text(rowRect(), tr("Nothing dangerous, wrong or worth a look."), Qt::AlignLeft);
        for (std::size_t i = 0; i < all.size(); ++i) {
            const double height = heightOf(all[i].text);
            const bool isLast = i + 1 == all.size();
            if (m_y + height + (isLast ? 0 : rowHeight) > listsEnd) {
                moreLine(andMore(all.size(), i));
                return;
            }
            m_painter.setPen(all[i].isBad ? badInk : ink);
            m_painter.drawText(QRectF(left, m_y, right - left, height),
                               Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, all[i].text);
            m_y += height;
        }
        m_painter.setPen(ink);
    }

    void sign() {
        setFont(24, false);
        m_painter.setPen(quietInk);
        const std::array<QString, 3> captions{tr("Date"), tr("Checked by the teacher"),
                                              tr("Made by")};
        constexpr std::array<double, 3> from{left, 560, 1380};
        constexpr std::array<double, 3> to{500, 1320, right};
        for (std::size_t i = 0; i < captions.size(); ++i) {
            m_painter.fillRect(QRectF(from[i], signLine, to[i] - from[i], 3), ink);
            text(QRectF(from[i], signLine + 8, to[i] - from[i], 34), captions[i], Qt::AlignLeft);
        }
    }

private:
    void setFont(int size, bool isBold) {
        QFont font = m_painter.font();
        font.setPixelSize(size);
        font.setBold(isBold);
        m_painter.setFont(font);
    }

    // What is too long for its place ends in dots.
    void text(const QRectF& place, const QString& words, Qt::Alignment alignment) {
        const QString fitting = QFontMetricsF(m_painter.font(), m_painter.device())
                                    .elidedText(words, Qt::ElideRight, place.width());
        m_painter.drawText(
            place, static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine, fitting);
    }

    void rule(double y, double width, const QColor& colour) {
        m_painter.fillRect(QRectF(left, y, right - left, width), colour);
    }

    QRectF rowRect() const { return {left, m_y, right - left, rowHeight}; }

    void heading(const QString& title) {
        setFont(28, true);
        m_painter.setPen(ink);
        text(rowRect(), title, Qt::AlignLeft);
        m_y += rowHeight + 2;
    }

    void moreLine(const QString& words) {
        m_painter.setPen(quietInk);
        text(rowRect(), words, Qt::AlignLeft);
        m_painter.setPen(ink);
        m_y += rowHeight;
    }

    template <std::size_t count>
    void row(const QStringList& texts, const std::array<Column, count>& columns) {
        constexpr double gap = 12;
        double x = left + 6;
        for (std::size_t i = 0; i < count; ++i) {
            text(QRectF(x, m_y, columns[i].width - gap, rowHeight),
                 texts.value(static_cast<qsizetype>(i)), columns[i].alignment);
            x += columns[i].width;
        }
        m_y += rowHeight;
        rule(m_y - 1, 1, line);
    }

    double heightOf(const QString& words) const {
        const QRectF room(left, 0, right - left, 10 * rowHeight);
        return m_painter.boundingRect(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, words)
                   .height() +
               6;
    }

    void picture(const QRectF& place, const QImage& image, const QString& caption) {
        setFont(23, false);
        m_painter.setPen(quietInk);
        text(QRectF(place.left(), place.top(), place.width(), 34), caption, Qt::AlignLeft);
        const QRectF box = place.translated(0, 36);
        m_painter.drawImage(box, image);
        m_painter.setPen(QPen(line, 2));
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawRect(box);
        m_painter.setPen(ink);
    }

    QPainter& m_painter;
    double m_y = top;
};

} // namespace

void paintSheet(QPainter& painter, const SheetContent& content, const SheetPictures& pictures) {
    Page page(painter);
    page.head(content);
    page.fields(content.details);
    page.pictures(pictures);
    page.fields(content.setup);
    page.table(tr("In this order, %1 in all").arg(content.time), content.orderHeads, content.order,
               orderColumns, mostOrder);
    page.table(tr("Tools, as they are changed"), {}, content.tools, toolColumns, mostTools);
    page.findings(content);
    page.sign();
}

} // namespace torvik
