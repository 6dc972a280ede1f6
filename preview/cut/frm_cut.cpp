// SPDX-License-Identifier: MIT
#include "preview/cut/frm_cut.h"

#include "forms/dialog_places.h"
#include "forms/reading_order.h"
#include "preview/cut/cut_picture.h"
#include "preview/cut/play_bar.h"
#include "preview/cut/program_list.h"
#include "preview/cut/solid_view.h"

#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace torvik {
namespace {

constexpr int listWidth = 410;        // pixels
constexpr QSize roomForFrame(16, 48); // what the window manager puts round the window

} // namespace

FrmCut::FrmCut(std::shared_ptr<CutWork> work, QWidget* parent)
    : QDialog(parent), m_work(std::move(work)), m_tabs(new QTabWidget), m_picture(new CutPicture),
      m_solid(new SolidView), m_list(new ProgramList), m_play(new PlayBar) {
    setObjectName(QStringLiteral("FrmCut"));
    const QString& name = m_work->piece().name;
    setWindowTitle(name.isEmpty() ? tr("The piece") : tr("The piece – %1").arg(name));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    m_tabs->setObjectName(QStringLiteral("tabCut"));
    m_picture->setFrameShape(QFrame::NoFrame);
    m_tabs->addTab(m_picture, tr("&Picture"));
    m_tabs->addTab(m_solid, tr("&Solid"));

    auto* const split = new QSplitter(Qt::Horizontal);
    split->addWidget(m_tabs);
    split->addWidget(makeProgramSide());
    split->setStretchFactor(0, 1);
    split->setChildrenCollapsible(false);
    split->setSizes({670, listWidth});
    readInOrder(*split);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    buttons->button(QDialogButtonBox::Close)->setObjectName(QStringLiteral("cmdClose"));
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(dialogMargin, dialogMargin, dialogMargin, dialogMargin);
    column->addWidget(split, 1);
    column->addWidget(m_play);
    column->addWidget(buttons);
    resize(QSize(1120, 700).boundedTo(screen()->availableSize() - roomForFrame));

    m_picture->canvas().showMoment(true);
    m_solid->showMoment(true);
    connect(&m_picture->canvas(), &CutCanvas::moveChosen, this, &FrmCut::chooseMove);
    connect(m_list, &ProgramList::lineChosen, this, &FrmCut::goToLine);
    connect(m_play, &PlayBar::moved, this, &FrmCut::showAt);
    m_list->setText(m_work->piece().program);
    m_list->setEnabled(false); // there is no moment to go to yet
    if (m_work->state() == CutWork::State::sweeping)
        connect(m_work.get(), &CutWork::ended, this, &FrmCut::workEnded);
    else
        workEnded();
    m_picture->setWork(m_work);
    m_solid->setWork(m_work);
    m_picture->canvas().setFocus();
}

QWidget* FrmCut::makeProgramSide() {
    auto* const side = new QWidget;
    auto* const caption = new QLabel(tr("P&rogram"));
    caption->setBuddy(m_list);
    auto* const column = new QVBoxLayout(side);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(caption);
    column->addWidget(m_list, 1);
    return side;
}

void FrmCut::workEnded() {
    const bool isReady = m_work->state() == CutWork::State::ready;
    m_play->setLength(isReady ? m_work->timeline().seconds() : 0);
    m_list->setEnabled(isReady);
    if (!isReady)
        return;
    // The list is at the end, too: getting the focus it would choose its first line.
    showAt(m_work->timeline().seconds());
    if (m_wantedLine > 0)
        showLine(m_wantedLine);
}

void FrmCut::showLine(quint32 line) {
    m_wantedLine = line;
    m_list->showLine(line);
    if (m_work->state() != CutWork::State::ready)
        return;
    goToLine(line);
    m_list->setFocus();
}

// What a moment looks like everywhere.
void FrmCut::showAt(double seconds) {
    const CutPiece& piece = m_work->piece();
    const Moment moment = m_work->timeline().at(seconds);
    m_work->showMoment(moment);
    m_picture->canvas().chooseMove({});
    if (moment.move < piece.moves.size()) {
        const check::Move& move = piece.moves[moment.move];
        const check::Place place = sweep::partOf(move, moment.fraction).to;
        m_picture->canvas().setTool(CutToolPlace{place, piece.radiusOf(piece.toolAt(moment.move))});
        m_list->showLine(move.line);
    } else {
        m_picture->canvas().setTool({});
        if (!piece.moves.empty())
            m_list->showLine(piece.moves.back().line);
    }
    m_picture->canvas().momentChanged();
    m_solid->momentChanged();
}

// To the end of the line's moves, so that what it cuts is there, and marked.
void FrmCut::goToLine(quint32 line) {
    const check::Moves& moves = m_work->piece().moves;
    const auto behind = std::upper_bound(
        moves.begin(), moves.end(), line,
        [](quint32 wanted, const check::Move& move) { return wanted < move.line; });
    m_play->play(false);
    if (behind == moves.begin())
        return m_play->goTo(0);
    const auto move = static_cast<std::size_t>(behind - moves.begin()) - 1;
    m_play->goTo(m_work->timeline().end(move));
    m_list->showLine(line);
    if (moves[move].line == line)
        m_picture->canvas().chooseMove(move);
}

void FrmCut::chooseMove(quint64 move) {
    m_play->play(false);
    m_picture->canvas().chooseMove(move);
    m_list->showLine(m_work->piece().moves[move].line);
}

void FrmCut::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space && m_play->isEnabled())
        m_play->play(!m_play->isPlaying());
    else
        QDialog::keyPressEvent(event);
}

} // namespace torvik
