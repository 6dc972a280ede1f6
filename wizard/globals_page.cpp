// SPDX-License-Identifier: MIT
#include "wizard/globals_page.h"

#include "answers/job_checks.h"
#include "answers/pen_values.h"
#include "base/error_trap.h"
#include "base/picture.h"
#include "check/sense/sense.h"
#include "forms/form_fields.h"
#include "forms/help_key.h"
#include "forms/number_box.h"
#include "forms/quiet_line.h"
#include "wizard/heights_diagram.h"
#include "wizard/host/finding_texts.h"
#include "wizard/host/wizard_host.h"
#include "wizard/host/workshop.h"
#include "wizard/pens/pen_controls.h"

#include <QApplication>
#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>

#include <algorithm>
#include <limits>
#include <string_view>

namespace torvik {
namespace {

constexpr int helpHeights = 2;
constexpr int heightLinesKept = 2;
constexpr int hintLinesKept = 2;

struct Height {
    const char* name;
    const char* caption;
    const char* tip;
    int usual; // mm
};

constexpr std::array<Height, heightFields.size()> heights{{
    {QT_TRANSLATE_NOOP("GlobalsPage", "Tool Change Height"),
     QT_TRANSLATE_NOOP("GlobalsPage", "Tool &Change Height"),
     QT_TRANSLATE_NOOP("GlobalsPage",
                       "Where the tool is changed, well above the work and its clamps"),
     50},
    {QT_TRANSLATE_NOOP("GlobalsPage", "Safe Height for Rapids"),
     QT_TRANSLATE_NOOP("GlobalsPage", "&Safe Height for Rapids"),
     QT_TRANSLATE_NOOP("GlobalsPage",
                       "Where the tool travels quickly across the work without touching anything"),
     5},
    {QT_TRANSLATE_NOOP("GlobalsPage", "Rapid Down To"),
     QT_TRANSLATE_NOOP("GlobalsPage", "&Rapid Down To"),
     QT_TRANSLATE_NOOP("GlobalsPage",
                       "How far the tool comes down quickly; the rest it goes at its feed"),
     2},
}};

QString hintOf(std::size_t height) {
    return GlobalsPage::tr("%1. Usual: %2 mm")
        .arg(GlobalsPage::tr(heights[height].tip))
        .arg(heights[height].usual);
}

QString wrong(HeightFault::Kind kind) {
    switch (kind) {
    case HeightFault::Kind::zero:
        break;
    case HeightFault::Kind::tooLarge:
        return GlobalsPage::tr("The %1 is too large a number");
    case HeightFault::Kind::notNumber:
        return GlobalsPage::tr("The %1 is not a number");
    }
    return GlobalsPage::tr("The %1 may not be zero");
}

} // namespace

GlobalsPage::GlobalsPage(Workshop& workshop, WizardHost& host, QWidget* parent)
    : QWidget(parent), m_workshop(workshop), m_host(host) {
    setObjectName(QStringLiteral("picGlobals"));
    auto* const explanation = new QLabel(
        tr("Heights are measured from the top of the material (Z 0). A height above it is "
           "positive."));
    explanation->setWordWrap(true);

    auto* const form = new QGridLayout;
    form->setColumnStretch(3, 1);
    const auto changed = [this] {
        sayHeights();
        if (m_workshop.job.gintWizardStep == 2)
            m_host.setNextEnabled(isFilled());
    };
    for (int i = 0; i < 3; ++i) {
        const Height& height = heights[static_cast<std::size_t>(i)];
        auto* const box = new NumberBox(signedMeasureHint);
        box->setObjectName(QStringLiteral("txtGlob%1").arg(i));
        box->setToolTip(hintOf(static_cast<std::size_t>(i)));
        addFormRow(*form, i, tr(height.caption), box, QStringLiteral("mm"), helpHeights);
        connect(box, &QLineEdit::textChanged, this, changed);
        m_heights[static_cast<std::size_t>(i)] = box;
    }

    auto* const units = new QGroupBox(tr("Feed rates are typed in"));
    units->setObjectName(QStringLiteral("fraUnits"));
    auto* const unitsLayout = new QVBoxLayout(units);
    auto* const group = new QButtonGroup(this);
    const std::array<QString, 2> unitTexts{tr("mm per &minute"), tr("mm per secon&d")};
    for (int i = 0; i < 2; ++i) {
        auto* const option = new QRadioButton(unitTexts[static_cast<std::size_t>(i)]);
        option->setObjectName(QStringLiteral("optUnits%1").arg(i));
        option->setToolTip(tr("The unit of every feed rate on the pages that follow"));
        option->setProperty(helpContextProperty, helpHeights);
        group->addButton(option, i);
        unitsLayout->addWidget(option);
        connect(option, &QRadioButton::toggled, this, changed);
        m_units[static_cast<std::size_t>(i)] = option;
    }

    m_quiet = new QuietLine(QStringLiteral("lblQuietHeights"), heightLinesKept);
    auto* const layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(makePageTitle(tr("Heights and units for the whole job")));
    m_damage = makeWarning(QStringLiteral("lblDamage"));
    layout->addWidget(m_damage);
    layout->addWidget(explanation);
    layout->addLayout(form);
    layout->addWidget(m_quiet);
    layout->addWidget(makePicture());
    layout->addWidget(units);
    layout->addStretch(1);
}

QWidget* GlobalsPage::makePicture() {
    m_diagram = new HeightsDiagram({tr(heights[0].name), tr(heights[1].name), tr(heights[2].name)});
    m_diagram->setObjectName(QStringLiteral("picHeights"));
    m_hint = new QLabel;
    m_hint->setObjectName(QStringLiteral("lblHeightHint"));
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignTop);
    m_hint->setMinimumHeight(hintLinesKept * m_hint->fontMetrics().lineSpacing());
    markHeight(0);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) {
        const auto* const at = std::find(m_heights.begin(), m_heights.end(), now);
        if (at != m_heights.end())
            markHeight(static_cast<std::size_t>(at - m_heights.begin()));
    });
    auto* const picture = new QWidget;
    auto* const layout = new QVBoxLayout(picture);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_diagram);
    layout->addWidget(m_hint);
    return picture;
}

void GlobalsPage::markHeight(std::size_t height) {
    m_diagram->mark(height);
    m_hint->setText(hintOf(height));
}

HeightTexts GlobalsPage::texts() const {
    HeightTexts texts;
    for (std::size_t i = 0; i < texts.size(); ++i)
        texts[i] = m_heights[i]->text().toStdString();
    return texts;
}

void GlobalsPage::sayHeights() {
    m_diagram->setTyped({m_heights[0]->text(), m_heights[1]->text(), m_heights[2]->text()});
    std::array<float, heightFields.size()> typed{};
    QuietLine::Texts missing;
    for (std::size_t i = typed.size(); i-- > 0;) {
        const std::string text = m_heights[i]->text().toStdString();
        typed[i] = text.empty() ? std::numeric_limits<float>::quiet_NaN()
                                : static_cast<float>(boxNumber(text));
        if (text.empty())
            missing = {{tr("%1 is empty").arg(tr(heights[i].name))}};
    }
    check::Findings findings;
    check::findHeightSense(typed[0], typed[1], typed[2], findings);
    QuietLine::Texts texts = findingTexts(findings);
    texts.resize(std::min<std::size_t>(texts.size(), 1));
    m_quiet->say(texts.empty() ? missing : texts);
}

void GlobalsPage::SaveGlobals() {
    withErrorTrap(m_workshop.logger, {"SaveGlobals", "modHpgl"},
                  [&] { storeTyped(m_workshop.job.answers); });
}

void GlobalsPage::storeTyped(Answers& answers) const {
    storeHeights(texts(), answers);
    chooseFeedUnits(m_units[0]->isChecked(), answers);
}

std::vector<std::string> GlobalsPage::typedTexts() const {
    const HeightTexts typed = texts();
    return {typed.begin(), typed.end()};
}

void GlobalsPage::typeAgain(const std::vector<std::string>& texts) {
    for (std::size_t i = 0; i < m_heights.size() && i < texts.size(); ++i)
        m_heights[i]->setText(QString::fromStdString(texts[i]));
}

void GlobalsPage::RestoreGlobals() {
    withErrorTrap(m_workshop.logger, {"RestoreGlobals", "modHpgl"}, [&] {
        const Answers& answers = m_workshop.job.answers;
        for (std::size_t i = 0; i < heightFields.size(); ++i) {
            const float height = answers.*heightFields[i];
            m_heights[i]->setText(height == 0 ? QString()
                                              : QString::fromStdString(formatFixed(height, 0)));
        }
        const std::size_t chosen = isPerMinute(answers) ? 0 : 1;
        m_units[chosen]->setChecked(true);
        m_units[chosen]->setFocusPolicy(Qt::StrongFocus); // the Tab key leads to the chosen one
        m_units[1 - chosen]->setFocusPolicy(Qt::ClickFocus);
    });
}

bool GlobalsPage::blnGlobalsValid() {
    bool valid = false;
    withErrorTrap(m_workshop.logger, {"blnGlobalsValid", "modHpgl"}, [&] {
        const auto fault = heightFault(texts());
        valid = !fault;
        if (!fault)
            return;
        NumberBox& box = *m_heights[fault->height];
        box.selectAll();
        m_workshop.messages.intStdMsgBox(
            wrong(fault->kind).arg(tr(heights[fault->height].name)).toStdString(), styleExclamation,
            usualTitle);
        box.setFocus();
    });
    return valid;
}

void GlobalsPage::sayDamage(const std::string& damage) {
    showWarning(*m_damage, damage.empty()
                               ? QString()
                               : tr("The saved answers are damaged and were not used: %1")
                                     .arg(breakablePath(QString::fromStdString(damage))));
}

bool GlobalsPage::isFilled() const {
    for (const QLineEdit* const box : m_heights)
        if (box->text().isEmpty())
            return false;
    return m_units[0]->isChecked() || m_units[1]->isChecked();
}

void GlobalsPage::enter() {
    m_host.setNextEnabled(isFilled());
    for (QLineEdit* const box : m_heights) {
        if (box->text().isEmpty()) {
            box->setFocus();
            return;
        }
    }
    m_heights[0]->setFocus();
}

} // namespace torvik
