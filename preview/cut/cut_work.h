// SPDX-License-Identifier: MIT
// A piece with its field, which is swept in the background. Several windows may show one work; it
// belongs to the window thread. Ending it stops the sweep and waits for it.
#pragma once

#include "preview/cut/cut_piece.h"
#include "preview/cut/timeline.h"
#include "sweep/growth.h"

#include <QObject>

#include <atomic>
#include <thread>

namespace torvik {

class CutWork : public QObject {
    Q_OBJECT

public:
    enum class State : std::uint8_t { sweeping, ready, failed };

    // Begins the sweep.
    explicit CutWork(CutPiece piece);
    ~CutWork() override;
    Q_DISABLE_COPY_MOVE(CutWork)

    const CutPiece& piece() const { return m_piece; }
    const Timeline& timeline() const { return m_timeline; }
    State state() const { return m_state; }
    int percent() const { return m_percent; }

    // Only when it is ready.
    const sweep::Field& whole() const { return m_growth->whole(); }
    const sweep::Cuts& cuts() const { return m_growth->cuts(); }
    const sweep::Field& moment() const { return m_growth->field(); }
    void showMoment(Moment moment) { m_growth->show(moment.move, moment.fraction); }
    // The billet, or where it is not known what is cut.
    CutBillet billet() const;

signals:
    void progressed(int percent);
    void ended(); // ready, or failed for want of memory

private:
    void sweepAll();
    void end(State state);

    const CutPiece m_piece;
    const Timeline m_timeline;
    State m_state = State::sweeping;
    std::unique_ptr<sweep::Growth> m_growth;
    std::atomic<int> m_percent = 0;
    std::atomic<bool> m_cancel = false;
    std::jthread m_thread;
};

} // namespace torvik
