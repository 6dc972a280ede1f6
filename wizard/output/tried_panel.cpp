// SPDX-License-Identifier: MIT
#include "wizard/output/tried_panel.h"

#include "base/picture.h"
#include "check/time/program_time.h"
#include "forms/quiet_line.h"
#include "languages/shown_text.h"
#include "preview/cut/tried_words.h"
#include "trial/trial.h"
#include "wizard/output/finding_list.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace torvik {
namespace {

constexpr int columnGap = 12; // pixels
constexpr int rowGap = 4;
constexpr int groupGap = 8;

QString shown(double length) {
    return std::isnan(length) ? QStringLiteral("?")
                              : QString::fromStdString(formatFixed(length, 1));
}

QString billetText(const check::Billet& billet) {
    if (std::isnan(billet.length) && std::isnan(billet.width) && std::isnan(billet.depth))
        return TriedPanel::tr("not given");
    return TriedPanel::tr("%1 × %2 × %3 mm")
        .arg(shown(billet.length), shown(billet.width), shown(billet.depth));
}

// "T1 6.0 mm Slot drill – 5.2 mm deep – 3 passes"; a narrow page breaks it between the parts only.
QString workText(const TriedGroup& group) {
    QStringList parts{group.tool.empty() ? TriedPanel::tr("no tool")
                                         : QString::fromStdString(group.tool),
                      TriedPanel::tr("%1 mm deep").arg(shown(group.depth)), passesText(group)};
    for (QString& part : parts)
        part.replace(u' ', QChar::Nbsp);
    return parts.join(QStringLiteral("\u00A0– "));
}

QLabel* plainLabel(const QString& text) {
    auto* const label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QLabel* boldLabel(const QString& text) {
    auto* const label = plainLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

TriedPanel::TriedPanel(QWidget* parent)
    : QGroupBox(parent), m_busy(plainLabel(tr("The program is being tried…"))),
      m_facts(buildFacts()), m_state(new QuietLine(QStringLiteral("lblFindings"), 0)),
      m_findings(new FindingList), m_groupsPlace(new QVBoxLayout),
      m_look(new QPushButton(tr("&Look at the piece…"))) {
    setObjectName(QStringLiteral("fraTried"));
    setTitle(tr("What will be written"));
    m_busy->setObjectName(QStringLiteral("lblTrying"));
    m_look->setObjectName(QStringLiteral("cmdLook"));
    m_look->setToolTip(tr("The piece as the program cuts it, move by move, and as a solid"));
    connect(m_look, &QPushButton::clicked, this, [this] { emit lookWanted(0); });
    connect(m_findings, &FindingList::lineChosen, this, &TriedPanel::lookWanted);
    auto* const column = new QVBoxLayout(this);
    column->setSpacing(groupGap);
    column->addWidget(m_busy);
    column->addWidget(m_facts);
    column->addWidget(m_state);
    column->addWidget(m_findings);
    column->addLayout(m_groupsPlace);
    column->addWidget(m_look, 0, Qt::AlignLeft);
    showBusy();
}

QWidget* TriedPanel::buildFacts() {
    auto* const facts = new QWidget;
    auto* const grid = new QGridLayout(facts);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(columnGap);
    grid->setVerticalSpacing(rowGap);
    grid->setColumnStretch(1, 1);
    const auto add = [&](QLabel*& value, const char* name, const QString& caption) {
        const int row = grid->rowCount();
        value = plainLabel({});
        value->setObjectName(QString::fromUtf8(name));
        grid->addWidget(new QLabel(caption), row, 0, Qt::AlignTop);
        grid->addWidget(value, row, 1);
    };
    add(m_part, "lblPart", tr("Part"));
    add(m_billet, "lblBillet", tr("Billet"));
    add(m_minutes, "lblMinutes", tr("On the machine"));
    add(m_changes, "lblChanges", tr("Tool changes"));
    return facts;
}

void TriedPanel::showBusy() {
    m_busy->show();
    m_facts->hide();
    m_state->hide();
    m_state->say({});
    m_findings->setRows({}, false, *m_look);
    showGroups({}, false);
    setPieceShown(false);
}

void TriedPanel::setPieceShown(bool isShown) {
    m_look->setEnabled(isShown);
}

void TriedPanel::showTried(const TriedProgram& tried, const std::string& partName,
                           const QString& cause) {
    m_busy->hide();
    showFacts(tried, partName);
    showFindings(tried, cause);
    showGroups(tried.groups, tried.isTried());
}

void TriedPanel::showFacts(const TriedProgram& tried, const std::string& partName) {
    m_part->setText(QString::fromStdString(partName));
    m_billet->setText(billetText(tried.billet));
    m_minutes->setText(tried.isTried() ? shownText(check::timeText(tried.minutes))
                                       : tr("not known"));
    m_changes->setText(tried.isTried() ? QString::number(tried.summary.changes) : tr("not known"));
    m_facts->show();
}

void TriedPanel::showFindings(const TriedProgram& tried, const QString& cause) {
    QuietLine::Texts texts;
    if (tried.state == TriedProgram::State::failed)
        texts.push_back(
            {tr("The program cannot be written: %1.").arg(cause), QuietLine::Tone::warning});
    else if (tried.state == TriedProgram::State::tooLong)
        texts.push_back({tr("The program has more than %1 lines. That is too long to be tried.")
                             .arg(mostTriedLines),
                         QuietLine::Tone::warning});
    else if (tried.groups.empty())
        texts.push_back({tr("It mills nothing: every pen is left out."), QuietLine::Tone::warning});
    else if (tried.findings.isGood())
        texts.push_back({tr("Nothing dangerous or wrong is found in it.")});
    m_state->say(texts);
    m_state->setVisible(!texts.empty());
    m_findings->setRows(check::findingRows(tried.findings), !tried.moves.empty(), *m_look);
}

void TriedPanel::showGroups(const std::vector<TriedGroup>& groups, bool isTimed) {
    delete m_groups;
    m_groups = new QWidget;
    m_groups->setObjectName(QStringLiteral("picGroups"));
    auto* const grid = new QGridLayout(m_groups);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(columnGap);
    grid->setVerticalSpacing(0);
    grid->setColumnStretch(1, 1);
    int row = 0;
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (i > 0)
            grid->setRowMinimumHeight(row++, rowGap);
        grid->addWidget(boldLabel(QString::number(i + 1)), row, 0, Qt::AlignTop);
        grid->addWidget(boldLabel(shownText(groups[i].name)), row, 1);
        if (isTimed)
            grid->addWidget(new QLabel(shownText(check::timeText(groups[i].minutes))), row, 2,
                            Qt::AlignTop | Qt::AlignRight);
        grid->addWidget(plainLabel(workText(groups[i])), row + 1, 1, 1, 2);
        row += 2;
    }
    m_groups->setVisible(!groups.empty());
    m_groupsPlace->addWidget(m_groups);
}

} // namespace torvik
