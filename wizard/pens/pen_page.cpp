// SPDX-License-Identifier: MIT
#include "wizard/pens/pen_page.h"

#include "answers/pen_position.h"
#include "forms/number_box.h"
#include "wizard/pens/pen_words.h"

#include <QCheckBox>
#include <QPushButton>
#include <QRadioButton>

namespace torvik {
namespace {

constexpr int linesShownTime = 1600; // ms
constexpr int linesHiddenTime = 200;

} // namespace

PenPage::PenPage(Workshop& workshop, WizardHost& host, QWidget* parent)
    : QWidget(parent), m_workshop(workshop), m_host(host), m_controls(makePenControls(*this)) {
    setObjectName("picDetails");
    connectControls();
}

void PenPage::connectControls() {
    for (std::int16_t i = 0; i < 2; ++i)
        connect(m_controls.optCut[static_cast<std::size_t>(i)], &QRadioButton::clicked, this,
                [this, i] {
                    if (isCurrentStep())
                        SetCut(i);
                });
    for (std::size_t i = 0; i < penRowCount; ++i) {
        connect(m_controls.txtDet[i], &QLineEdit::textChanged, this, [this, i] { edited(i); });
        connect(m_controls.txtDet[i], &NumberBox::left, this, [this, i] { left(i); });
    }
    connect(m_controls.chkPeck, &QCheckBox::clicked, this, &PenPage::chkPeck_Click);
    connect(m_controls.cmdTool, &QPushButton::clicked, this, &PenPage::cmdTool_Click);
}

// The position

void PenPage::ShowPen(std::int16_t direction) {
    withErrorTrap(m_workshop.logger, {"ShowPen", "modHpgl"}, [&] {
        m_shown.reset();
        Job& job = m_workshop.job;
        const PenMove move = movePosition(job, direction);
        if (move != PenMove::onPage) {
            leavePens(move == PenMove::behindLast);
            return;
        }
        markCurrentNode(job);
        m_host.updateTree();
        m_host.PlotLines();
        m_blinkPaths = blinkPaths(job);
        FlashLines();
        ShowDetails();
        raise();
        CheckCutState();
        focusNextIfDone();
    });
}

void PenPage::leavePens(bool forward) {
    m_host.stopFlashing();
    markNoNode(m_workshop.job);
    m_host.updateTree();
    if (!forward)
        m_host.clearPreview();
    m_host.PlotLines();
    if (forward)
        m_host.leavePensForward();
    else
        m_host.leavePensBackward();
}

void PenPage::FlashLines() {
    if (!isCurrentStep())
        return;
    m_linesShown = !m_linesShown;
    // Asked for first, so that a frame that fails does not end the blinking.
    m_host.startFlashing(m_linesShown ? linesShownTime : linesHiddenTime);
    quietly(m_flashLinesFailed, "FlashLines", [&] { plotBlinkFrame(); });
}

void PenPage::plotBlinkFrame() {
    m_host.plotBlink(m_blinkPaths, m_linesShown && !currentPen(m_workshop.job).blnOmit);
}

std::string PenPage::strToolTitle() const {
    return pageSubjectText(m_workshop.job).toStdString();
}

} // namespace torvik
