// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"
#include "resultlook.h"

#include <CorvelGui/Ruler>
#include <CorvelGui/RulerMarker>
#include <CorvelGui/TrackDescription>

#include <QWidget>

namespace CorvelGui {
class ZoomTimeline;
} // namespace CorvelGui

namespace Review {

class Clock;
class Selection;

/// The timeline of the client, with the indicator at the selected moment. All that the client asks
/// of the timeline goes through this class.
///
/// The view goes after the moment, by pages at first, unless the user looks elsewhere.
class TimelinePane : public Translated<QWidget>
{
    Q_OBJECT

public:
    /// Owns neither; both must live longer.
    TimelinePane(const Clock& clock, Selection& selection, QWidget* parent = nullptr);

    /// Sets the limits and shows the whole period, without ranges. Without a period, the timeline
    /// is empty. The moment stays, and should be put into the period next.
    void setPeriod(const CorvelGui::TimeSpan& period);
    /// More is known of the same recordings: the view stays, unless it shows all of them.
    void extendPeriod(const CorvelGui::TimeSpan& period);
    void setTracks(const QList<CorvelGui::TrackDescription>& tracks);
    void clearMarkers();
    void addMarkers(const QList<CorvelGui::RulerMarker>& markers);

    /// Shows at least @p span around a time: the closest view there is.
    void showAround(qint64 msecs, qint64 span);
    void showRange(const CorvelGui::TimeSpan& range);

    void setSearchRange(const CorvelGui::TimeSpan& range);
    void setResultRange(const CorvelGui::TimeSpan& range, const ResultLook& look);
    void clearRanges();
    /// What the user selected, on the timeline or elsewhere; empty without one.
    CorvelGui::TimeSpan selectedRange() const;
    void setSelectedRange(const CorvelGui::TimeSpan& range);
    /// What the user is likely to mean: the selected range, or else the searched one.
    CorvelGui::TimeSpan chosenRange() const;
    /// Puts one end of the selected range; the other stays where that makes a range, or goes to the
    /// end of the period.
    void beginRangeAt(qint64 msecs);
    void endRangeAt(qint64 msecs);

    /// What is in view; empty without a period.
    CorvelGui::TimeSpan view() const;
    bool showsWholePeriod() const;
    /// Whether the view goes after the moment.
    bool isFollowing() const;
    bool canZoomIn() const;
    bool canZoomOut() const;
    /// Whether there are views that zooming left, before and after the one that is shown.
    bool hasPreviousView() const;
    bool hasNextView() const;
    bool canStepEarlier() const;
    bool canStepLater() const;

public Q_SLOTS:
    void zoomIn();
    void zoomOut();
    void showWholePeriod();
    void showPreviousView();
    void showNextView();
    /// Whether the view may be of any length, and not only as long as a zoom level says.
    void setFreeZoom(bool on);
    /// Whether a drag selects a range, and one with Shift moves the view, or the other way round.
    void setDragSelects(bool on);
    void setFollowMode(CorvelGui::Ruler::FollowMode mode);
    /// Half a view towards the begin or the end of the period.
    void stepEarlier();
    void stepLater();
    /// Brings the moment back into view, and follows it from there if there is a mode.
    void showMoment();
    void setMarkersShown(bool shown);
    void setActivityShown(bool shown);
    /// Counts and severities of events; a click on several at once lists them.
    void setEventDetailsShown(bool shown);
    /// One lane for each camera; choosing one selects the camera.
    void setLanesShown(bool shown);

Q_SIGNALS:
    /// Emitted whenever view() may have changed, and with it what can be done to it.
    void viewChanged();
    /// Emitted when the view has come to rest.
    void viewSettled(const CorvelGui::TimeSpan& view);
    /// Emitted when a marker was pressed or opened; its moment is the selected one already.
    void markerChosen(const QUuid& identifier);
    /// Emitted when selectedRange() changed, also while the user drags it.
    void selectedRangeChanged(const CorvelGui::TimeSpan& range);
    /// The user wants to see the event before (-1) or after (+1) a time.
    void eventWanted(qint64 msecs, int direction);
    /// Emitted when isFollowing() changed.
    void followingChanged();
    /// As TimelinePreview::changed(). @p position is on the upper edge of the timeline.
    void previewChanged(qint64 msecs, const QPoint& position, const CorvelGui::TimeSpan& symbol);

protected:
    void retranslate() final;
    void changeEvent(QEvent* event) override;

private:
    void openMenu(const CorvelGui::RulerContext& context);
    void followMoment();
    void bringIntoView(qint64 msecs);
    void followFont();
    double pixelsBetween(qint64 begin, qint64 end) const;

    const Clock& m_clock;
    Selection& m_selection;
    CorvelGui::ZoomTimeline* m_timeline;
    CorvelGui::Ruler* m_ruler;
    CorvelGui::TimeSpan m_period;
    CorvelGui::TimeSpan m_searchRange;
};

} // namespace Review
