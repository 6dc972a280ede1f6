// SPDX-License-Identifier: MIT
#include "wizard/pens/pen_words.h"

#include "answers/pen_position.h"
#include "base/picture.h"
#include "languages/shown_text.h"

#include <QCoreApplication>

namespace torvik {
namespace {

struct RowWords {
    const char* name; // as messages say it
    const char* tip;
    int help;
};

constexpr std::array<RowWords, penRowCount> cuttingWords{{
    {QT_TRANSLATE_NOOP("PenPage", "Spindle Speed"),
     QT_TRANSLATE_NOOP("PenPage", "How many turns the spindle makes in a minute"), 80},
    {QT_TRANSLATE_NOOP("PenPage", "Horizontal Feed Rate for Cutting"),
     QT_TRANSLATE_NOOP("PenPage", "How fast the tool moves along the lines"), 90},
    {QT_TRANSLATE_NOOP("PenPage", "Vertical Feed Rate into Material"),
     QT_TRANSLATE_NOOP("PenPage", "How fast the tool moves down into the material; a quarter of "
                                  "the cutting feed is usual"),
     100},
    {QT_TRANSLATE_NOOP("PenPage", "Final Depth"),
     QT_TRANSLATE_NOOP("PenPage", "How deep the finished cut is below the surface"), 110},
    {QT_TRANSLATE_NOOP("PenPage", "Maximum Depth per Pass"),
     QT_TRANSLATE_NOOP("PenPage", "How much the tool takes off at most each time it goes round"),
     120},
    {QT_TRANSLATE_NOOP("PenPage", "Final Pass Depth of Cut"),
     QT_TRANSLATE_NOOP("PenPage", "How much is left for a last, light pass; 0 for no such pass"),
     242},
    {QT_TRANSLATE_NOOP("PenPage", "Final Pass Horizontal Feed Rate"),
     QT_TRANSLATE_NOOP("PenPage", "How fast the tool moves along the lines in the last pass"), 244},
}};

constexpr std::array<RowWords, 5> drillingWords{{
    {QT_TRANSLATE_NOOP("PenPage", "Spindle Speed"),
     QT_TRANSLATE_NOOP("PenPage", "How many turns the spindle makes in a minute"), 80},
    {QT_TRANSLATE_NOOP("PenPage", "Drilling Feed Rate"),
     QT_TRANSLATE_NOOP("PenPage", "How fast the drill moves down into the material"), 95},
    {QT_TRANSLATE_NOOP("PenPage", "Depth of Hole"),
     QT_TRANSLATE_NOOP("PenPage", "How deep the finished hole is below the surface"), 105},
    {QT_TRANSLATE_NOOP("PenPage", "Dwell Time"),
     QT_TRANSLATE_NOOP("PenPage",
                       "How long the drill turns at the bottom of the hole; 0 for no wait"),
     115},
    {QT_TRANSLATE_NOOP("PenPage", "Peck Distance"),
     QT_TRANSLATE_NOOP("PenPage", "How much deeper the drill goes with each peck"), 125},
}};

const RowWords& wordsOf(PenForm form, std::size_t row) {
    return form == PenForm::drilling ? drillingWords.at(row) : cuttingWords.at(row);
}

QString tr(const char* text) {
    return QCoreApplication::translate("PenPage", text);
}

QString rowName(PenForm form, std::size_t row) {
    return tr(wordsOf(form, row).name);
}

} // namespace

QString rowTip(PenForm form, std::size_t row) {
    return tr(wordsOf(form, row).tip);
}

int rowHelp(PenForm form, std::size_t row) {
    return wordsOf(form, row).help;
}

QString rowUnit(PenForm form, std::size_t row, std::string_view feedUnits) {
    switch (penRows(form)[row].unit) {
    case RowUnit::rpm:
        return tr("rpm");
    case RowUnit::millimetres:
        return tr("mm");
    case RowUnit::seconds:
        return tr("s");
    case RowUnit::feed:
        break;
    }
    QString unit = QString::fromUtf8(feedUnits.data(), static_cast<qsizetype>(feedUnits.size()));
    if (unit.size() >= 2 && unit.startsWith(u'(') && unit.endsWith(u')'))
        unit = unit.mid(1, unit.size() - 2);
    return unit;
}

QString rowCaption(PenForm form, std::size_t row, std::string_view feedUnits) {
    return QStringLiteral("%1 (%2)").arg(rowName(form, row), rowUnit(form, row, feedUnits));
}

QString emptyText(PenForm form, std::size_t row) {
    return tr("%1 is empty").arg(rowName(form, row));
}

QString faultText(PenForm form, const InputFault& fault) {
    const QString name = rowName(form, fault.row);
    switch (fault.kind) {
    case PenFault::zero:
        return tr("The %1 may not be zero").arg(name);
    case PenFault::negative:
        return tr("The %1 may not be negative").arg(name);
    case PenFault::notNumber:
        return tr("The %1 is not a number").arg(name);
    case PenFault::tooLarge:
        return tr("The %1 is too large to be stored").arg(name);
    case PenFault::aboveOther:
        break;
    }
    return tr("The %1 may not be greater than the %2").arg(name, rowName(form, fault.other));
}

QString penText(const Job& job) {
    const Pen& pen = currentPen(job);
    return (pen.blnDrill ? tr("%1 holes") : tr("%1 lines")).arg(shownText(pen.strColour));
}

QString pageSubjectText(const Job& job) {
    if (!isHolePage(job))
        return penText(job);
    return tr("%1 mm diam. holes").arg(QString::fromStdString(formatFixed(holeDiameter(job), 1)));
}

QString pagePlaceText(const Job& job) {
    const PenPlace place = penPlace(job);
    const QString pen = tr("Pen %1 of %2").arg(place.pen).arg(place.pens);
    return place.size == 0 ? pen
                           : pen + tr(", hole size %1 of %2").arg(place.size).arg(place.sizes);
}

} // namespace torvik
