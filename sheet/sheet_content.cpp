// SPDX-License-Identifier: MIT
#include "sheet/sheet_content.h"

#include "base/files.h"
#include "base/picture.h"
#include "check/finding_rows.h"
#include "check/time/program_time.h"
#include "gcode/dialects.h"
#include "gcode/output_file.h"
#include "languages/shown_text.h"
#include "preview/cut/cut_painting.h"
#include "preview/cut/tried_words.h"
#include "trial/trial.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace torvik {
namespace {

QString tr(const char* text) {
    return QCoreApplication::translate("JobSheet", text);
}

QString orDash(const std::string& text) {
    return text.empty() ? QStringLiteral("–") : QString::fromStdString(text);
}

QString numberText(double number, int decimals) {
    return QString::fromStdString(formatFixed(number, decimals));
}

QString timeOf(double minutes) {
    return shownText(check::timeText(minutes));
}

// The number of a program for the diskette is asked for when it is written.
QString programText(const Job& job, const Dialect& dialect) {
    const QString name = QString::fromUtf8(dialect.name);
    if (dialect.needsNumber())
        return tr("%1 ______ for %2")
            .arg(QString::fromUtf8(dialect.diskettePrefix.data(),
                                   static_cast<qsizetype>(dialect.diskettePrefix.size())),
                 name);
    const std::string drawing = utf8FromPath(pathFromUtf8(job.drawing.gstrPlotFile).filename());
    return tr("%1 for %2").arg(QString::fromStdString(proposedFileName(dialect, drawing, 0)), name);
}

std::vector<SheetField> detailsOf(const Job& job) {
    const auto& header = job.answers.gstrHeader;
    return {
        {tr("Designer"), orDash(header[headerDesigner])},
        {tr("Date"), orDash(header[headerDate])},
        {tr("Material"), orDash(header[headerMaterial])},
        {tr("Teacher"), orDash(header[headerTeacher])},
        {tr("Teaching group"), orDash(header[headerTeachingGroup])},
        {tr("Drawing"), orDash(utf8FromPath(pathFromUtf8(job.drawing.gstrPlotFile).filename()))}};
}

QString billetText(const check::Billet& billet) {
    const auto length = [](double size) {
        return size > 0 ? lengthText(size) : QStringLiteral("?");
    };
    return QStringLiteral("%1 × %2 × %3")
        .arg(length(billet.length), length(billet.width), length(billet.depth));
}

QString clampingText(const Clamping& clamping) {
    if (clamping.sides == Clamping::Sides::none)
        return tr("no side is free: see the piece");
    const QString sides = clamping.sides == Clamping::Sides::leftAndRight
                              ? tr("left and right, %1 are free")
                              : tr("front and back, %1 are free");
    return sides.arg(lengthText(clamping.room));
}

std::vector<SheetField> setupOf(const Job& job, const TriedProgram& tried,
                                const Clamping& clamping) {
    const Answers& answers = job.answers;
    return {{tr("Billet (X × Y × Z)"), billetText(tried.billet)},
            {tr("Clamp at"), clampingText(clamping)},
            {tr("Zero point"), tr("front left corner, Z 0 on top")},
            {tr("Tool change height"), lengthText(answers.gsngToolChangeHeight)},
            {tr("Safe height"), lengthText(answers.gsngSafeHeight)},
            {tr("Rapid down to"), lengthText(answers.gsngRapidDownTo)}};
}

// In the units in which it was given.
QString feedText(const Answers& answers, double feed) {
    const bool isPerSecond = answers.gsngFeedFactor > 1;
    return isPerSecond ? shortNumber(feed / 60) : numberText(feed, 0);
}

QStringList orderRow(const Answers& answers, const TriedGroup& tried, std::size_t number) {
    const Settings& settings = answers.gudtSettings[tried.group.settings];
    const bool isCut = tried.group.radius == 0;
    QString across = isCut ? feedText(answers, settings.sngFeedHorizontal) : QStringLiteral("–");
    if (isCut && settings.sngFinalPassDepth > 0)
        across = tr("%1, last %2").arg(across, feedText(answers, settings.sngFeedFinalPass));
    return {QString::number(number),
            shownText(tried.name),
            QString::fromStdString(tried.tool),
            numberText(settings.sngSpindleSpeed, 0),
            across,
            feedText(answers, settings.sngFeedVertical),
            lengthText(tried.depth),
            passesText(tried),
            timeOf(tried.minutes)};
}

std::vector<QStringList> toolRows(const TriedProgram& tried) {
    struct Change {
        std::string tool;
        double minutes;
    };
    std::vector<Change> changes;
    for (const TriedGroup& group : tried.groups) {
        if (changes.empty() || changes.back().tool != group.tool)
            changes.push_back({group.tool, 0});
        changes.back().minutes += group.minutes;
    }
    std::vector<QStringList> rows;
    rows.reserve(changes.size());
    for (const Change& change : changes)
        rows.push_back({QString::number(rows.size() + 1), QString::fromStdString(change.tool),
                        timeOf(change.minutes)});
    return rows;
}

// "Danger, line 15 and 4 more: …".
std::vector<SheetFinding> sheetFindings(const check::Findings& findings) {
    std::vector<SheetFinding> shown;
    for (const check::FindingRow& row : check::findingRows(findings)) {
        QString line = shownText(check::levelName(row.level()));
        if (row.line > 0)
            line += QStringLiteral(", ") + shownText(row.where());
        line += QStringLiteral(": ") + shownFilled(row.sentence, check::rowOf(row.kind).sentence);
        line[0] = line[0].toUpper();
        shown.push_back({row.level() >= check::Level::wrong, line});
    }
    return shown;
}

} // namespace

SheetContent sheetContent(const Job& job, const Dialect& dialect, const TriedProgram& tried,
                          const Clamping& clamping) {
    SheetContent content;
    content.title = orDash(job.answers.gstrHeader[headerPartName]);
    content.program = programText(job, dialect);
    content.time = timeOf(tried.minutes);
    content.details = detailsOf(job);
    content.setup = setupOf(job, tried, clamping);
    const QString units =
        job.answers.gsngFeedFactor > 1 ? QStringLiteral("mm/s") : QStringLiteral("mm/min");
    content.orderHeads = {QString(),
                          tr("What"),
                          tr("Tool"),
                          tr("Spindle, rpm"),
                          tr("Feed, %1").arg(units),
                          tr("Down, %1").arg(units),
                          tr("Depth"),
                          tr("Passes"),
                          tr("Time")};
    for (const TriedGroup& group : tried.groups)
        content.order.push_back(orderRow(job.answers, group, content.order.size() + 1));
    content.tools = toolRows(tried);
    content.findings = sheetFindings(tried.findings);
    return content;
}

std::size_t rowsShown(std::size_t rows, std::size_t room) {
    return rows <= room ? rows : std::max<std::size_t>(room, 1) - 1;
}

QString andMore(std::size_t rows, std::size_t shown) {
    return tr("and %1 more").arg(rows - shown);
}

} // namespace torvik
