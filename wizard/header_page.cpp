// SPDX-License-Identifier: MIT
#include "wizard/header_page.h"

#include "answers/job_checks.h"
#include "answers/saved_names.h"
#include "base/error_trap.h"
#include "base/picture.h"
#include "base/text.h"
#include "forms/comment_box.h"
#include "forms/dialog_places.h"
#include "forms/form_fields.h"
#include "forms/quiet_line.h"
#include "wizard/host/finding_texts.h"
#include "wizard/host/workshop.h"

#include <QDate>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

namespace torvik {
namespace {

constexpr int helpHeader = 5;

struct Field {
    const char* caption;
    const char* unit;
    const char* tag; // as the question for it names it
};

constexpr std::array<Field, headerLines> fields{{
    {QT_TRANSLATE_NOOP("HeaderPage", "D&ate"), "", QT_TRANSLATE_NOOP("HeaderPage", "date")},
    {QT_TRANSLATE_NOOP("HeaderPage", "&Designer"), "", QT_TRANSLATE_NOOP("HeaderPage", "designer")},
    {QT_TRANSLATE_NOOP("HeaderPage", "&Teacher"), "", ""},
    {QT_TRANSLATE_NOOP("HeaderPage", "Teaching &Group"), "", ""},
    {QT_TRANSLATE_NOOP("HeaderPage", "Name of &Part"), "",
     QT_TRANSLATE_NOOP("HeaderPage", "name of the part")},
    {QT_TRANSLATE_NOOP("HeaderPage", "&Material"), "", QT_TRANSLATE_NOOP("HeaderPage", "material")},
    {QT_TRANSLATE_NOOP("HeaderPage", "Billet Length &X"), "mm", ""},
    {QT_TRANSLATE_NOOP("HeaderPage", "Billet Width &Y"), "mm", ""},
    {QT_TRANSLATE_NOOP("HeaderPage", "Billet Depth &Z"), "mm", ""},
}};

QString trimmed(const QLineEdit& box) {
    return QString::fromStdString(std::string(trimBlanks(box.text().toStdString())));
}

} // namespace

HeaderPage::HeaderPage(Workshop& workshop, QWidget* parent)
    : QWidget(parent), m_workshop(workshop) {
    setObjectName(QStringLiteral("picHeader"));
    auto* const form = new QGridLayout;
    form->setColumnStretch(1, 1);
    for (int i = 0; i < 9; ++i) {
        const Field& field = fields[static_cast<std::size_t>(i)];
        auto* const box = new QLineEdit;
        box->setObjectName(QStringLiteral("txtHead%1").arg(i));
        box->setProperty(tagProperty, QString::fromUtf8(field.tag));
        const bool needed = isHeaderLineNeeded(static_cast<std::size_t>(i));
        box->setToolTip(needed ? tr("Must be filled; it stands at the top of the program")
                               : tr("Optional; it stands at the top of the program"));
        QLabel* const caption =
            addFormRow(*form, i, tr(field.caption), box, QString::fromUtf8(field.unit), helpHeader);
        if (needed)
            caption->setText(caption->text() + QStringLiteral(" *"));
        keepCommentWhole(*box);
        if (i >= headerBilletX)
            connect(box, &QLineEdit::textChanged, this, [this] { sayBillet(); });
        m_boxes[static_cast<std::size_t>(i)] = box;
    }
    m_quiet = new QuietLine(QStringLiteral("lblQuietHeader"));
    auto* const note = new QLabel(tr("* must be filled"));
    auto* const layout = new QVBoxLayout(this);
    layout->setSpacing(12);
    layout->addWidget(makePageTitle(tr("Details of the job")));
    layout->addLayout(form);
    layout->addWidget(note);
    layout->addWidget(m_quiet);
    layout->addStretch(1);
}

void HeaderPage::sayBillet() {
    if (m_reach.area.empty()) {
        m_quiet->say({});
        return;
    }
    const auto number = [](double length) {
        return QString::fromStdString(formatFixed(length, 2));
    };
    const auto& [minX, minY, maxX, maxY] = m_reach.area;
    QuietLine::Texts texts{
        {tr("The cuts reach from X %1 to %2 mm and from Y %3 to %4 mm, and go %5 mm deep.")
             .arg(number(minX), number(maxX), number(minY), number(maxY),
                  number(m_reach.deepest))}};
    const auto typed = [this](HeaderField field) {
        return m_boxes[static_cast<std::size_t>(field)]->text().toStdString();
    };
    check::Findings findings;
    check::findBilletSense(
        m_workshop.job, m_reach,
        check::billetOf(typed(headerBilletX), typed(headerBilletY), typed(headerBilletZ)),
        findings);
    const auto found = findingTexts(findings);
    texts.insert(texts.end(), found.begin(), found.end());
    m_quiet->say(texts);
}

void HeaderPage::fill() {
    const Job& job = m_workshop.job;
    m_reach = check::reachOf(job, m_workshop.tools);
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        m_boxes[i]->setText(QString::fromStdString(job.answers.gstrHeader[static_cast<long>(i)]));
    if (trimmed(*m_boxes[headerDate]).isEmpty())
        m_boxes[headerDate]->setText(
            QLocale::system().toString(QDate::currentDate(), QLocale::ShortFormat));
    if (trimmed(*m_boxes[headerPartName]).isEmpty())
        m_boxes[headerPartName]->setText(
            QString::fromStdString(proposedPartName(job.drawing.gstrPlotFile)));
    for (QLineEdit* const box : m_boxes)
        mendComment(*box);
    sayBillet();
    for (QLineEdit* const box : m_boxes) {
        if (trimmed(*box).isEmpty()) {
            box->setFocus();
            return;
        }
    }
    m_boxes[0]->setFocus();
}

void HeaderPage::readBoxes() {
    storeTyped(m_workshop.job.answers);
}

void HeaderPage::storeTyped(Answers& answers) const {
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        answers.gstrHeader[static_cast<long>(i)] = m_boxes[i]->text().toStdString();
}

bool HeaderPage::blnHeaderDone() {
    bool done = false;
    withErrorTrap(m_workshop.logger, {"blnHeaderDone", "modHpgl"}, [&] {
        HeaderTexts texts;
        for (std::size_t i = 0; i < m_boxes.size(); ++i)
            texts[i] = m_boxes[i]->text().toStdString();
        const auto missing = missingHeaderLine(texts);
        done = !missing;
        if (!missing)
            return;
        m_workshop.messages.intStdMsgBox(
            tr("Please enter the %1").arg(tr(fields[*missing].tag)).toStdString(), styleExclamation,
            tr("Required information").toStdString());
        m_boxes[*missing]->setFocus();
    });
    return done;
}

} // namespace torvik
