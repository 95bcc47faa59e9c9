#pragma once

#include "rangepanel.h"

#include <CorvelGui/RulerMarker>
#include <CorvelGui/TrackDescription>

#include <QWidget>

namespace CorvelGui {
class Ruler;
class ZoomTimeline;
} // namespace CorvelGui

namespace Review {

/// The timeline of the client. All that the client asks of the timeline goes through this class.
class TimelinePane : public QWidget
{
    Q_OBJECT

public:
    /// @p zoneName is the zone of its labels; an empty one means the zone of this machine.
    explicit TimelinePane(const QString& zoneName, QWidget* parent = nullptr);

    /// Sets the limits and shows the whole period, without ranges. Without a period, the timeline
    /// is empty.
    void setPeriod(const CorvelGui::TimeSpan& period);
    void setTracks(const QList<CorvelGui::TrackDescription>& tracks);
    /// Replaces the markers that were set before.
    void setMarkers(const QList<CorvelGui::RulerMarker>& markers);
    void setZone(const QString& zoneName);
    /// Applies all translated texts again.
    void retranslate();

    /// The time of the indicator; 0 if there is none.
    qint64 currentTime() const { return m_currentTime; }
    /// Moves the indicator. The view follows where the indicator leaves it.
    void setCurrentTime(qint64 msecs);
    /// Moves the indicator as playing does: where it leaves the view, the view moves by whole
    /// pages. A view that does not show the indicator, since the user looks elsewhere, stays.
    void playTo(qint64 msecs);
    /// Moves the view by whole pages until it shows the indicator.
    void showCurrentTime();
    /// Moves the indicator, and only where that leaves the view, jumps.
    void goTo(qint64 msecs);
    /// Puts the indicator at a time and brings it into the middle of the view.
    void jumpTo(qint64 msecs);
    /// As jumpTo(), with a view of at least @p span around it: the closest one there is.
    void jumpTo(qint64 msecs, qint64 span);

    void setSearchRange(const CorvelGui::TimeSpan& range);
    void setResultRange(const CorvelGui::TimeSpan& range, const ResultLook& look);
    void clearRanges();
    /// What setSearchRange() set last; empty after clearRanges().
    CorvelGui::TimeSpan searchRange() const { return m_searchRange; }

    /// What is in view; empty without a period.
    CorvelGui::TimeSpan view() const;
    bool showsWholePeriod() const;
    bool canZoomIn() const;
    bool canZoomOut() const;
    bool canStepEarlier() const;
    bool canStepLater() const;

public Q_SLOTS:
    void zoomIn();
    void zoomOut();
    void showWholePeriod();
    /// Half a view towards the begin or the end of the period.
    void stepEarlier();
    void stepLater();
    void setMarkersShown(bool shown);

Q_SIGNALS:
    /// Emitted whenever view() may have changed, and with it what can be done to it.
    void viewChanged();
    /// Emitted whenever currentTime() changed.
    void currentTimeChanged();
    /// Emitted when the user takes hold of the timeline with the mouse, and when he lets go of it.
    void heldChanged(bool held);
    /// Emitted when a marker was pressed or opened; the indicator stands on it already.
    void markerChosen(const QUuid& identifier);
    /// The mouse rests at a time, or on the marker of that time (@p onMarker). @p position is on
    /// the upper edge of the timeline. A time of 0 ends the preview.
    void previewChanged(qint64 msecs, const QPoint& position, bool onMarker);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    template <typename Change>
    void changeView(Change change);
    void centreOn(qint64 msecs);
    void turnPagesTo(qint64 msecs);
    void beginViewWithin(qint64 msecs);
    void beginViewAt(qint64 msecs);
    void setHeld(bool held);
    bool isInView(qint64 msecs) const;
    void showPreview(quint64 msecs, const QPoint& position, bool onMarker);
    QDateTime inZone(qint64 msecs) const;
    qint64 msecsPerPixel() const;

    CorvelGui::ZoomTimeline* m_timeline;
    CorvelGui::Ruler* m_ruler;
    QTimeZone m_zone;
    CorvelGui::TimeSpan m_period;
    CorvelGui::TimeSpan m_searchRange;
    qint64 m_currentTime = 0;
    bool m_held = false;
    bool m_markerPreviewed = false;
};

} // namespace Review
