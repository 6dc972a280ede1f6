// SPDX-License-Identifier: MIT
// Plays a program: a button, a slider over its time, and how many times as fast as the machine.
// Seconds of machine time.
#pragma once

#include <QElapsedTimer>
#include <QWidget>

class QComboBox;
class QLabel;
class QSlider;
class QTimer;
class QToolButton;

namespace torvik {

class PlayBar : public QWidget {
    Q_OBJECT

public:
    explicit PlayBar(QWidget* parent = nullptr);

    // Stops, goes to the end, and chooses a speed that shows all of it in half a minute or so.
    void setLength(double seconds);
    double now() const { return m_now; }
    void goTo(double seconds);
    bool isPlaying() const;
    void play(bool on);

protected:
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

signals:
    void moved(double seconds);

private:
    void tick();
    void slide(int value);
    void showAt(double seconds);
    void showPlaying();

    QToolButton* m_play;
    QSlider* m_slider;
    QLabel* m_time;
    QComboBox* m_speed;
    QTimer* m_timer;
    QElapsedTimer m_clock; // since the last tick
    double m_length = 0;
    double m_now = 0;
};

} // namespace torvik
