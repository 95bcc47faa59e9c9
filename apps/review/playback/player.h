// SPDX-License-Identifier: MIT
#pragma once

#include "playerclock.h"
#include "playerkeys.h"

#include <QObject>
#include <QTimer>

#include <functional>

namespace Review {

class Selection;
class TrackHistory;

/// Moves the selected moment as a playbar says.
///
/// Whoever else selects a moment makes a seek, and playing goes on from there. While the user holds
/// the moment, it stands still.
class Player : public QObject
{
    Q_OBJECT

public:
    /// Milliseconds of a clock that never goes back.
    using MonotonicClock = std::function<qint64()>;

    /// @p now replaces the clock of this machine.
    Player(Selection& selection, CorvelGui::PPlaybar* bar, QObject* parent = nullptr,
           MonotonicClock now = {});

    /// Pauses, and plays from begin to end of @p period from now on.
    void setPeriod(const CorvelGui::TimeSpan& period);
    /// The period has become longer; it plays on.
    void extendPeriod(const CorvelGui::TimeSpan& period);
    /// The track whose begin and end have buttons, and whose gaps can be skipped; null for none.
    void setTrack(const TrackHistory* track);
    void setSkippingGaps(bool skip);

    /// See PlayerKeys.
    void setShortcuts(const Shortcuts& shortcuts) { m_keys.setShortcuts(shortcuts); }
    const Shortcuts& shortcuts() const { return m_keys.shortcuts(); }

    /// Zero while paused.
    CorvelGui::PPlaybar::PlaybackSpeed speed() const;
    /// Plays at @p speed in the direction in which it plays already, or forwards; zero pauses.
    void setSpeed(CorvelGui::PPlaybar::PlaybackSpeed speed);

    bool isPlaying() const { return m_speed != 0; }
    /// Whether it plays at 8 times the speed or faster, in either direction.
    bool isFast() const;

public Q_SLOTS:
    void pause();
    /// Plays up to now. Called every 40 ms while playing.
    void advance();

Q_SIGNALS:
    /// Emitted whenever isPlaying() changed.
    void playingChanged(bool playing);
    /// Emitted whenever speed() or the direction changed.
    void speedChanged();
    /// Emitted whenever isFast() changed.
    void fastChanged(bool fast);
    /// Emitted when playing or a step ended early, because gaps are skipped and nothing is recorded
    /// further on.
    void ranOutOfRecordings();

private:
    void followBar();
    void followMoment();
    void step(int frames);
    void show();
    void applyGaps();
    void report(PlayerClock::Stop stop);

    Selection& m_selection;
    CorvelGui::PPlaybar* m_bar;
    PlayerKeys m_keys;
    MonotonicClock m_now;
    QTimer m_timer;
    PlayerClock m_clock;
    CorvelGui::TimeSpan m_period;
    CorvelGui::TimeSpan m_track;
    bool m_hasTrack = false;
    bool m_skippingGaps = false;
    int m_speed = 0; ///< see PlayerClock
};

} // namespace Review
