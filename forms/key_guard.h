// SPDX-License-Identifier: MIT
// Held keys do not run through dialogs: one filter over the whole application keeps Enter, Return,
// Space and Escape from pressing buttons that the user has not seen yet. All other keys work, and
// Space types everywhere. All times are milliseconds.
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>

#include <functional>

class QKeyEvent;
class QWidget;

namespace torvik {

class KeyGuard : public QObject {
    Q_OBJECT

public:
    // A dialog takes none of these keys for so long after it was shown.
    static constexpr int dialogTime = 300;
    // A press so soon after the release of the same key is a repeat: some systems do not mark the
    // first repeat that a new window gets.
    static constexpr int repeatTime = 5;

    using Clock = std::function<qint64()>;

    // Filters the application's events as long as it lives. The clock tells when a dialog is shown
    // and when a key arrives; none: the system's.
    explicit KeyGuard(Clock clock = {});

    // Sees events before the filters that were installed until now.
    void goFirst();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool isHeldBack(const QKeyEvent& press) const;
    bool isRepeat(const QKeyEvent& press) const;
    bool isDialogNew() const;

    Clock m_clock;
    QHash<int, quint64> m_released; // each key's last release, by the events' own time stamps
    QPointer<QWidget> m_dialog;     // the dialog that was shown last
    qint64 m_shown = 0;
};

} // namespace torvik
