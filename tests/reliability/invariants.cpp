// SPDX-License-Identifier: MIT
#include "tests/reliability/invariants.h"

#include "answers/pen_checks.h"
#include "answers/pen_position.h"
#include "check/plan/plan.h"
#include "check/sense/sense.h"
#include "commands/target_names.h"
#include "gcode/dialects.h"
#include "languages/shown_text.h"
#include "preview/preview_widget.h"
#include "wizard/frm_main.h"
#include "wizard/output/finding_rows.h"
#include "wizard/pens/pen_words.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTreeWidget>

#include <algorithm>
#include <iterator>

namespace torvik {
namespace {

template <typename Control>
Control& find(const QWidget& window, const QString& name) {
    auto* const control = window.findChild<Control*>(name);
    if (control == nullptr)
        throw std::logic_error("no control " + name.toStdString());
    return *control;
}

bool isHeightsPageFilled(const QWidget& window) {
    bool isFilled = find<QRadioButton>(window, "optUnits0").isChecked() ||
                    find<QRadioButton>(window, "optUnits1").isChecked();
    for (int i = 0; i < 3; ++i)
        isFilled &= !find<QLineEdit>(window, QString("txtGlob%1").arg(i)).text().isEmpty();
    return isFilled;
}

PenBoxes boxesOf(const QWidget& window) {
    const auto& page = find<QWidget>(window, "picDetails");
    PenBoxes boxes;
    for (std::size_t i = 0; i < penRowCount; ++i) {
        const auto& box = find<QLineEdit>(window, QString("txtDet%1").arg(i));
        boxes.text[i] = box.text().toStdString();
        boxes.enabled[i] = box.isEnabledTo(&page) && box.isVisibleTo(&page);
    }
    return boxes;
}

bool asksForDetails(const Job& job) {
    return !currentPen(job).blnOmit && !isOwnPageOfDrilledPen(job);
}

bool mayGoOn(const QWidget& window, const Workshop& workshop) {
    const Job& job = workshop.job;
    if (job.gintWizardStep == 2)
        return isHeightsPageFilled(window);
    return job.gintWizardStep != 3 || !asksForDetails(job) ||
           (isInList(workshop.tools, currentSettings(job).intTool) &&
            !firstEmptyRow(boxesOf(window)));
}

void checkPenPage(const QWidget& window, const Workshop& workshop, Record& record) {
    const Job& job = workshop.job;
    const auto text = [&](const char* label) { return find<QLabel>(window, label).text(); };
    record.require(text("lblDetTitle").contains(pageSubjectText(job)), "the page has another pen");
    record.require(text("lblPenPlace") == pagePlaceText(job), "the page has another place");
    const bool isListed = isInList(workshop.tools, currentSettings(job).intTool);
    if (!asksForDetails(job))
        return;
    record.require(text("lblToolNumber").isEmpty() == !isListed, "the page has another tool");
    const PenBoxes shown = boxesOf(window);
    PenBoxes followed = shown;
    followFinalDepth(followed, rowDepth, currentForm(job), job.answers.gsngFeedFactor, {});
    record.require(followed.text == shown.text && followed.enabled == shown.enabled,
                   "the final pass does not follow the depths");
}

std::string boldNodes(const std::vector<ColourNode>& nodes) {
    std::string bold;
    for (const ColourNode& node : nodes)
        bold += (node.bold ? node.key + ' ' : "") + boldNodes(node.children);
    return bold;
}

std::string boldItems(const QTreeWidgetItem& parent) {
    std::string bold;
    for (int i = 0; i < parent.childCount(); ++i) {
        const QTreeWidgetItem& item = *parent.child(i);
        if (item.font(0).bold())
            bold += item.data(0, Qt::UserRole).toString().toStdString() + ' ';
        bold += boldItems(item);
    }
    return bold;
}

void checkTree(const QWidget& window, const Job& job, Record& record) {
    const auto& tree = find<QTreeWidget>(window, "tvwColours");
    const std::string shown = boldItems(*tree.invisibleRootItem());
    record.require(shown == boldNodes(job.position.gudtColourTree), "the tree marks " + shown);
    const bool isMarked = job.gintWizardStep == 3;
    record.require(isMarked ? shown.starts_with(currentPen(job).strColour + ' ') : shown.empty(),
                   "the tree marks " + shown + "at step " + std::to_string(job.gintWizardStep));
}

void checkTexts(const QWidget& page, Record& record) {
    for (const QLabel* const label : page.findChildren<QLabel*>())
        if (label->isVisible() && label->wordWrap() && !label->text().isEmpty() &&
            label->height() < label->heightForWidth(label->width()))
            record.fault("a text is cut: " + label->text().toStdString());
}

std::string bytesIn(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

void checkWindow(FrmMain& window, const Workshop& workshop, Record& record) {
    const Job& job = workshop.job;
    record.require(QApplication::activeModalWidget() == nullptr, "a dialog is left over");
    record.require(QApplication::activePopupWidget() == nullptr, "a menu is left over");
    const auto& pages = find<QStackedWidget>(window, "picPages");
    record.require(pages.currentIndex() == job.gintWizardStep - 1, "another page is shown");
    const auto& next = find<QPushButton>(window, "cmdNext");
    record.require(next.isVisible() == (job.gintWizardStep > 1), "Next is on the wrong page");
    record.require(!next.isVisible() || next.isEnabled() == mayGoOn(window, workshop),
                   next.isEnabled() ? "Next can be pressed" : "Next cannot be pressed");
    if (job.gintWizardStep == 3)
        checkPenPage(window, workshop, record);
    checkTree(window, job, record);
    checkTexts(*pages.currentWidget(), record);
}

void checkPicture(FrmMain& window, const Workshop& workshop, Record& record) {
    const Job& job = workshop.job;
    if (job.gintWizardStep < 2 || job.gintWizardStep > 5 || job.drawing.gintPathCount == 0)
        return;
    auto& shown = *static_cast<PreviewWidget*>(find<QWidget>(window, "picBack").parentWidget());
    Logger muted;
    PreviewWidget anew(job, workshop.tools, muted);
    anew.setAttribute(Qt::WA_DontShowOnScreen);
    anew.resize(shown.size());
    anew.show();
    anew.GetScale();
    if (job.gintWizardStep == 5)
        anew.DrawPiece();
    else
        anew.PlotLines();
    const bool isFitOfPiece = shown.fit() != anew.fit() && job.gintWizardStep < 5;
    bool isSame = isFitOfPiece || shown.picture() == anew.picture();
    if (!isSame && job.gintWizardStep == 3) {
        anew.plotBlink(blinkPaths(job), false);
        isSame = shown.picture() == anew.picture();
    }
    record.require(isSame, "the picture is not that of the job");
}

void checkWritten(FrmMain& window, const Workshop& workshop, std::int16_t target,
                  const std::filesystem::path& folder, Record& record) {
    const Dialect& dialect = dialectFor(target);
    std::string program;
    std::string sideText;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        (entry.path().extension() == ".txt" ? sideText : program) = bytesIn(entry.path());
    record.require(!program.empty(), "no program was written");
    check::Report report = check::checkProgramOfJob(program, sideText, workshop.job, workshop.tools,
                                                    check::findTarget(dialect.optionName));
    check::addSense(workshop.job, workshop.tools, report.findings);
    record.require(!report.moves.empty(), "the program does nothing");
    std::string said;
    for (const QLabel* const label : find<QWidget>(window, "lstFindings").findChildren<QLabel*>())
        said += label->text().toHtmlEscaped().toStdString() + label->text().toStdString() + '\n';
    for (const check::FindingRow& row : check::findingRows(report.findings))
        if (row.level() >= check::Level::wrong)
            record.require(said.find(saidOf(row).toStdString()) != std::string::npos ||
                               said.find(saidOf(row).toHtmlEscaped().toStdString()) !=
                                   std::string::npos,
                           "the page does not name: " + row.sentence);
}

} // namespace torvik
