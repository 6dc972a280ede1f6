// SPDX-License-Identifier: MIT
#include "preview/cut/cut_work.h"

#include <new>

namespace torvik {
namespace {

sweep::Area areaOf(const CutBillet& billet) {
    if (billet.isKnown())
        return {billet.lowX, billet.lowY, billet.lowX + billet.length, billet.lowY + billet.width};
    return {billet.lowX, billet.lowY, billet.lowX, billet.lowY};
}

} // namespace

CutWork::CutWork(CutPiece piece)
    : m_piece(std::move(piece)), m_timeline(m_piece.moves, m_piece.pace),
      m_thread([this] { sweepAll(); }) {}

CutWork::~CutWork() {
    m_cancel = true;
    m_thread.join();
}

// What it tells reaches the window thread through its queue.
void CutWork::sweepAll() {
    State state = State::failed;
    try {
        m_growth = std::make_unique<sweep::Growth>(m_piece.moves, m_piece.diameters(),
                                                   areaOf(m_piece.billet));
        const auto tell = [this](double part) {
            const int percent = static_cast<int>(100 * part);
            if (m_percent.exchange(percent) != percent)
                QMetaObject::invokeMethod(
                    this, [this, percent] { emit progressed(percent); }, Qt::QueuedConnection);
        };
        if (m_growth->build({2, &m_cancel, tell}))
            state = State::ready;
    } catch (const std::bad_alloc&) {
        m_growth.reset();
    }
    if (!m_cancel)
        QMetaObject::invokeMethod(
            this, [this, state] { end(state); }, Qt::QueuedConnection);
}

void CutWork::end(State state) {
    m_state = state;
    emit ended();
}

CutBillet CutWork::billet() const {
    CutBillet billet = m_piece.billet;
    if (billet.isKnown())
        return billet;
    const sweep::Grid& grid = whole().grid;
    billet.lowX = grid.lowX;
    billet.lowY = grid.lowY;
    billet.length = grid.columns * grid.cell;
    billet.width = grid.rows * grid.cell;
    return billet;
}

} // namespace torvik
