// SPDX-License-Identifier: MIT
#pragma once

#include "data/reviewdata.h"
#include "look/translated.h"

#include <QWidget>

class QSplitter;

namespace Review {

class Clock;
class DevicePane;
class EventPane;
class HoverPicture;
class MarkerFeed;
class PlaybackPane;
class Player;
class PreviewCard;
class RecordingBar;
class RangePanel;
class Selection;
class TimelinePane;
class TransportBar;

/// Cameras, the picture of one of them, and events; the timeline that shows the checked cameras,
/// and what plays it. Knows what one pane means to another.
class ReviewPanes : public Translated<QWidget>
{
    Q_OBJECT

public:
    /// Owns neither; both must live longer.
    ReviewPanes(const Clock& clock, Selection& selection, QWidget* parent = nullptr);

    /// Replaces all that is shown.
    void setReview(const ReviewData& review);
    /// Replaces what differs in times. View, moment and camera stay as far as they can.
    void setTimes(const ReviewData& review);
    /// Shows what is known by now of the same recordings and, with @p newLists, events. View and
    /// moment stay; but the moment of showNewest() goes on to what is the newest now.
    void renew(const ReviewData& review, bool newLists);
    /// Replaces what differs in names and texts only. View and moment stay.
    void setTexts(const ReviewData& review);
    /// Shows the day in the middle of the period, with the indicator on the first event after noon.
    void showMiddleDay();

    /// Goes to the end of the last recording of the camera and, if the view follows the moment,
    /// lets it follow from there. The moment stays the newest until somebody sets another one.
    void showNewest();

    const DevicePane& devices() const { return *m_devices; }
    const EventPane& events() const { return *m_events; }
    const PlaybackPane& playback() const { return *m_playback; }
    RangePanel* ranges() const { return m_ranges; }
    TransportBar* transport() const { return m_transport; }
    TimelinePane* timeline() const { return m_timeline; }
    Player* player() const { return m_player; }

    /// Whether pictures of cameras or markers are still to come.
    bool isBusy() const;

    /// The widths of the panes in the upper row.
    QByteArray saveWidths() const;
    /// They hold from the moment on at which the panes are shown.
    void restoreWidths(const QByteArray& widths);

Q_SIGNALS:
    /// Tells the user in a sentence what has happened.
    void told(const QString& sentence);
    /// Emitted when isBusy() became false.
    void settled();

protected:
    void retranslate() final;
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

private:
    void createLayout();
    void keepRoom();
    void setPeriod(const CorvelGui::TimeSpan& period);
    void connectLists();
    void connectTimeline();
    void connectPlayer();
    void connectRecording();
    void tellSettled();

    qint64 newest() const;
    void goToNewest();
    void showCheckedTracks();
    void showTracks();
    void showRecordingEvents();
    void openEvent(qsizetype event);
    void openNextEvent(qint64 msecs, int direction);
    void showCameraOf(qsizetype event);
    void showPreview(qint64 msecs, const QPoint& position, const CorvelGui::TimeSpan& symbol);

    const Clock& m_clock;
    Selection& m_selection;
    ReviewData m_review;
    bool m_isNewest = false; ///< the moment

    QSplitter* m_tables;
    DevicePane* m_devices;
    PlaybackPane* m_playback;
    RecordingBar* m_recording;
    EventPane* m_events;
    RangePanel* m_ranges;
    TransportBar* m_transport;
    TimelinePane* m_timeline;
    MarkerFeed* m_markers;
    Player* m_player;
    PreviewCard* m_preview;
    HoverPicture* m_hover;
    /// Until the panes are shown.
    QByteArray m_widths;
};

} // namespace Review
