// SPDX-License-Identifier: MIT
#include "preview/cut/play_bar.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QSignalBlocker>
#include <QSlider>
#include <QTimer>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace torvik {
namespace {

constexpr int frameTime = 25;       // ms
constexpr int sliderSteps = 10'000; // over the whole program
constexpr double wholeShow = 40;    // seconds in which the first speed shows all of it
constexpr int fastest = 1024;
constexpr int iconSize = 16; // pixels

// "7:05", "19:00:12".
QString clockText(double seconds) {
    const auto whole = std::lround(seconds);
    const auto twoDigits = [](long number) {
        return QStringLiteral("%1").arg(number, 2, 10, QLatin1Char('0'));
    };
    const long minutes = whole / 60;
    const QString front = minutes < 60
                              ? QString::number(minutes)
                              : QString::number(minutes / 60) + u':' + twoDigits(minutes % 60);
    return front + u':' + twoDigits(whole % 60);
}

// A triangle, or two bars. In the ink of the theme, which the icons of a style may not have.
QIcon playIcon(const QColor& ink, bool isPlaying, double ratio) {
    QPixmap pixmap(QSize(iconSize, iconSize) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    if (isPlaying) {
        painter.drawRect(QRectF(3, 2, 4, 12));
        painter.drawRect(QRectF(9, 2, 4, 12));
    } else {
        painter.drawPolygon(QPolygonF({{4, 2}, {14, 8}, {4, 14}}));
    }
    return pixmap;
}

} // namespace

PlayBar::PlayBar(QWidget* parent)
    : QWidget(parent), m_play(new QToolButton(this)), m_slider(new QSlider(Qt::Horizontal, this)),
      m_time(new QLabel(this)), m_speed(new QComboBox(this)), m_timer(new QTimer(this)) {
    m_play->setObjectName(QStringLiteral("cmdPlay"));
    m_play->setFocusPolicy(Qt::StrongFocus);
    m_play->setAutoRaise(false);
    m_slider->setObjectName(QStringLiteral("sldPlay"));
    m_slider->setAccessibleName(tr("Time in the program"));
    m_slider->setToolTip(tr("How far the machine has got"));
    m_slider->setRange(0, sliderSteps);
    m_slider->setSingleStep(sliderSteps / 200);
    m_slider->setPageStep(sliderSteps / 20);
    m_time->setObjectName(QStringLiteral("lblPlayTime"));
    m_time->setToolTip(
        tr("Minutes and seconds of the moves, without starts, stops and changes of tools"));
    m_time->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_speed->setObjectName(QStringLiteral("cboSpeed"));
    m_speed->setAccessibleName(tr("Speed"));
    m_speed->setToolTip(tr("Speed: how many times as fast as the machine"));
    for (int speed = 1; speed <= fastest; speed *= 2)
        m_speed->addItem(QStringLiteral("%1×").arg(speed), speed);

    auto* const line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_play);
    line->addWidget(m_slider, 1);
    line->addWidget(m_time);
    line->addWidget(m_speed);

    m_timer->setInterval(frameTime);
    m_timer->setTimerType(Qt::PreciseTimer);
    connect(m_timer, &QTimer::timeout, this, &PlayBar::tick);
    connect(m_play, &QToolButton::clicked, this, [this] { play(!isPlaying()); });
    connect(m_slider, &QSlider::valueChanged, this, &PlayBar::slide);
    setLength(0);
}

void PlayBar::setLength(double seconds) {
    play(false);
    m_length = seconds;
    m_time->setMinimumWidth(fontMetrics().horizontalAdvance(
        QStringLiteral("%1 / %1 ").arg(clockText(std::max(seconds, 6000.0)))));
    int row = 0;
    while (row + 1 < m_speed->count() && m_speed->itemData(row).toInt() * wholeShow < seconds)
        ++row;
    m_speed->setCurrentIndex(row);
    showAt(seconds);
    setEnabled(seconds > 0);
}

bool PlayBar::isPlaying() const {
    return m_timer->isActive();
}

void PlayBar::play(bool on) {
    if (on && m_now >= m_length)
        goTo(0);
    m_clock.start();
    on ? m_timer->start() : m_timer->stop();
    showPlaying();
}

void PlayBar::showPlaying() {
    const bool on = isPlaying();
    m_play->setIcon(
        playIcon(palette().color(QPalette::Active, QPalette::ButtonText), on, devicePixelRatioF()));
    m_play->setToolTip(on ? tr("Pause (Space)") : tr("Play (Space)"));
    m_play->setAccessibleName(on ? tr("Pause") : tr("Play"));
}

void PlayBar::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        showPlaying();
    QWidget::changeEvent(event);
}

void PlayBar::hideEvent(QHideEvent* event) {
    play(false);
    QWidget::hideEvent(event);
}

void PlayBar::goTo(double seconds) {
    showAt(std::clamp(seconds, 0.0, m_length));
    emit moved(m_now);
}

void PlayBar::showAt(double seconds) {
    m_now = seconds;
    const QSignalBlocker quiet(m_slider);
    m_slider->setValue(
        m_length > 0 ? static_cast<int>(std::lround(seconds / m_length * sliderSteps)) : 0);
    m_time->setText(clockText(seconds) + QStringLiteral(" / ") + clockText(m_length));
}

void PlayBar::slide(int value) {
    goTo(m_length * value / sliderSteps);
}

void PlayBar::tick() {
    const double passed = static_cast<double>(m_clock.restart()) / 1000;
    goTo(m_now + passed * m_speed->currentData().toInt());
    if (m_now >= m_length)
        play(false);
}

} // namespace torvik
