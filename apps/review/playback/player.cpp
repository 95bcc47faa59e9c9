// SPDX-License-Identifier: MIT
#include "player.h"

#include "data/trackhistory.h"
#include "session/selection.h"

#include <QElapsedTimer>

#include <cstdlib>
#include <utility>

using CorvelGui::PPlaybar;
using CorvelGui::TimeSpan;

namespace Review {

namespace {

Player::MonotonicClock clockOfThisMachine()
{
    QElapsedTimer timer;
    timer.start();
    return [timer] {
        return timer.elapsed();
    };
}

/// In eighths of real time, backwards negative.
int speedOf(const PPlaybar& bar)
{
    const int speed =
        qRound(PlayerClock::realTime * PPlaybar::playbackSpeedToFloat(bar.playbackSpeed()));
    return bar.playbackState() < PPlaybar::Pause ? -speed : speed;
}

} // namespace

Player::Player(Selection& selection, PPlaybar* bar, QObject* parent, MonotonicClock now)
    : QObject(parent)
    , m_selection(selection)
    , m_bar(bar)
    , m_keys(bar)
    , m_now(now ? std::move(now) : clockOfThisMachine())
{
    m_timer.setInterval(int(PlayerClock::frame));
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &Player::advance);

    connect(&selection, &Selection::momentChanged, this, &Player::followMoment);
    connect(&selection, &Selection::heldChanged, this, &Player::followBar);

    connect(bar, &PPlaybar::playbackStateChanged, this, [this] {
        // Who starts to play wants to see where.
        if (!isPlaying())
            m_selection.reveal();
        followBar();
    });
    connect(bar, &PPlaybar::playbackSpeedChanged, this, &Player::followBar);
    connect(bar, &PPlaybar::frameForwardClicked, this, [this] { step(1); });
    connect(bar, &PPlaybar::frameBackwardClicked, this, [this] { step(-1); });
    connect(bar, &PPlaybar::trackStartClicked, this,
            [this] { m_selection.goTo(m_hasTrack ? m_track.begin : m_period.begin); });
    connect(bar, &PPlaybar::trackEndClicked, this,
            [this] { m_selection.goTo(m_hasTrack ? m_track.end : m_period.end); });
}

void Player::setPeriod(const TimeSpan& period)
{
    pause();
    extendPeriod(period);
}

void Player::extendPeriod(const TimeSpan& period)
{
    m_period = period;
    m_clock.setLimits(period);
}

void Player::setTrack(const TrackHistory* track)
{
    m_hasTrack = track != nullptr;
    m_track = track ? track->known() : TimeSpan();
    m_clock.setRecorded(track ? track->recorded() : QList<TimeSpan>());
    applyGaps();
}

void Player::setSkippingGaps(bool skip)
{
    m_skippingGaps = skip;
    applyGaps();
}

void Player::applyGaps()
{
    m_clock.setSkippingGaps(m_skippingGaps && m_hasTrack);
}

PPlaybar::PlaybackSpeed Player::speed() const
{
    return m_bar->playbackSpeed();
}

void Player::setSpeed(PPlaybar::PlaybackSpeed speed)
{
    if (m_period.isEmpty())
        return;
    if (speed == PPlaybar::SpeedZero)
        return pause();
    if (!isPlaying())
        m_selection.reveal();
    const bool backwards = m_bar->playbackState() < PPlaybar::Pause;
    if (speed < PPlaybar::Speed1)
        m_bar->setPlaybackState(backwards ? PPlaybar::SlowReverse : PPlaybar::SlowForward);
    else if (speed == PPlaybar::Speed1)
        m_bar->setPlaybackState(backwards ? PPlaybar::Reverse : PPlaybar::Play);
    else
        m_bar->setPlaybackState(backwards ? PPlaybar::FastBackward : PPlaybar::FastForward);
    m_bar->setPlaybackSpeed(speed);
    followBar();
}

void Player::pause()
{
    m_bar->setPlaybackState(PPlaybar::Pause);
    followBar();
}

void Player::advance()
{
    report(m_clock.advance(m_now()));
}

void Player::step(int frames)
{
    m_selection.reveal();
    report(m_clock.step(frames, m_now()));
}

void Player::report(PlayerClock::Stop stop)
{
    show();
    if (stop == PlayerClock::Stop::None)
        return;
    pause();
    if (stop == PlayerClock::Stop::NoMoreRecordings)
        Q_EMIT ranOutOfRecordings();
}

void Player::followBar()
{
    const int speed = speedOf(*m_bar);
    m_clock.setSpeed(m_selection.isHeld() ? 0 : speed, m_now());
    show();
    m_keys.followBar();
    const bool wasPlaying = isPlaying();
    const bool wasFast = isFast();
    if (std::exchange(m_speed, speed) != speed)
        Q_EMIT speedChanged();
    if (isFast() != wasFast)
        Q_EMIT fastChanged(!wasFast);
    if (isPlaying() == wasPlaying)
        return;
    if (wasPlaying)
        m_timer.stop();
    else
        m_timer.start();
    Q_EMIT playingChanged(!wasPlaying);
}

bool Player::isFast() const
{
    constexpr int fast = 8 * PlayerClock::realTime;
    return std::abs(m_speed) >= fast;
}

void Player::followMoment()
{
    if (m_selection.moment() != m_clock.position())
        m_clock.seek(m_selection.moment(), m_now());
}

void Player::show()
{
    if (!m_period.isEmpty())
        m_selection.setMoment(m_clock.position());
}

} // namespace Review
