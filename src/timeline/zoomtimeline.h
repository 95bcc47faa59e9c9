// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/RulerContext>
#include <CorvelGui/ZoomTimelineOperation>
#include <CorvelGui/corvelgui_export.h>

#include <QDateTime>
#include <QWidget>

namespace CorvelGui {

class Ruler;
class TimelineLanes;
class TimelineScroll;
class Zoomer;

/// The timeline that applications embed: a ruler on top, and below it the zoomer and the overview
/// strip, wired to each other. Clients connect to the signals of the parts.
///
/// A new timeline is inactive: call setActive(true, false) for markers, indicator and strip. It
/// is at least 804 pixels wide, for the ruler's minimum width and the margins around it.
///
/// Absolute times are milliseconds since the Unix epoch; Ruler says which have a sign.
class CORVELGUI_EXPORT ZoomTimeline : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(
        quint64 indicatorMSecs READ indicatorMSecs WRITE setIndicatorPosition DESIGNABLE false)
    Q_PROPERTY(QString timeZone READ timeZone WRITE setTimeZone)
    Q_PROPERTY(
        bool searchTimeRangeDisplayed READ isSearchTimeRangeDisplayed WRITE displaySearchTimeRange)
    Q_PROPERTY(bool orvaneGuiTheme READ hasOrvaneGuiTheme WRITE setOrvaneGuiTheme)
    Q_PROPERTY(int fontSize READ fontSize WRITE setFontSize)
    Q_PROPERTY(bool resultMode READ isResultMode WRITE setResultMode)
    Q_PROPERTY(bool active READ isActive WRITE makeActive)
    Q_PROPERTY(bool blocked READ isBlocked WRITE setBlocked)
    Q_PROPERTY(bool playMode READ isPlayMode WRITE setPlayMode)
    Q_PROPERTY(bool activityVisible READ isActivityVisible WRITE setActivityVisible NOTIFY
                   activityVisibleChanged)
    Q_PROPERTY(
        bool lanesVisible READ areLanesVisible WRITE setLanesVisible NOTIFY lanesVisibleChanged)
    Q_PROPERTY(
        QString currentTrack READ currentTrack WRITE setCurrentTrack NOTIFY currentTrackChanged)

public:
    explicit ZoomTimeline(QWidget* parent = nullptr);

    /// Whether timelines that are made from now on have a zoomer; they do by default. Process-wide.
    static void setZoomerEnabled(bool enabled);
    static bool isZoomerEnabled();

    /// The parts; they belong to the timeline.
    Ruler* ruler() const { return m_ruler; }
    TimelineLanes* lanes() const { return m_lanes; }
    TimelineScroll* timelineScroll() const { return m_scroll; }
    /// Null where the timeline was made without one.
    Zoomer* zoomer() const { return m_zoomer; }

    /// Sets the recording period. Does nothing when neither limit moves by a pixel at least.
    void setTimeLimits(quint64 begin, quint64 end);
    void setIndicatorPosition(quint64 msecs);
    /// As Ruler::exactIndicatorMSecs().
    quint64 indicatorMSecs() const;
    /// Both of the above, with one report of the new view at most.
    void setTimeLimitsAndIndicatorPosition(quint64 begin, quint64 end, quint64 indicator);
    void resetTimeline();
    /// Shows everything on the clock of another zone, by IANA or Windows name. View and indicator
    /// stay.
    void setTimeZone(const QString& name);
    /// As Ruler::timeZone().
    QString timeZone() const;

    /// Stores the range and displays it, in result mode as soon as that ends. @p adjustZoom zooms
    /// the ruler to it.
    void setSearchTimeRange(const QDateTime& from, const QDateTime& to, bool adjustZoom);
    void showSearchTimeRange();
    void hideSearchTimeRange();
    /// Shows or hides it.
    void displaySearchTimeRange(bool display);
    /// Also in result mode, where it waits for its end.
    bool isSearchTimeRangeDisplayed() const { return m_searchDisplayed; }
    void clearSearchTimeRange();

    void setOrvaneGuiTheme(bool on);
    /// What was set last; on at first, when only the indicator wears the theme's colour.
    bool hasOrvaneGuiTheme() const { return m_theme; }
    /// Point size of the ruler's texts; less than 1 counts as 1.
    void setFontSize(int points);
    /// As Ruler::fontSize().
    int fontSize() const;
    /// In result mode there is no indicator, and no search range is displayed.
    void setResultMode(bool on);
    bool isResultMode() const { return m_resultMode; }
    /// An inactive timeline is disabled, and shows neither markers nor indicator. A blocked one
    /// shows everything but takes no input.
    void setActive(bool active, bool blocked);
    /// Each is setActive() with the other value as it is. Both are off at first.
    void makeActive(bool active);
    bool isActive() const;
    void setBlocked(bool blocked);
    bool isBlocked() const;
    /// Selects the indicator's colour.
    void setPlayMode(bool on);
    bool isPlayMode() const;

    /// Whether the strip shows what is recorded in the period and how many markers begin when, as
    /// TimelineScroll::isActivityVisible() describes. Off by default.
    ///
    /// The strip stands below the ruler from edge to edge then, with the zoomer left of them. The
    /// wheel on it zooms the ruler about the time under the mouse, or about the nearest that is in
    /// view.
    bool isActivityVisible() const;
    void setActivityVisible(bool visible);

    /// Whether there is a lane for each track below the ruler, with its name left of it; the ruler
    /// shows all of them together as before. Off by default.
    bool areLanesVisible() const { return m_lanesVisible; }
    void setLanesVisible(bool visible);
    /// The track whose lane is highlighted, as TimelineLanes::currentTrack().
    QString currentTrack() const;
    void setCurrentTrack(const QString& identifier);

    /// What is at a position of the timeline: at one of the ruler or of a lane, and nothing
    /// elsewhere.
    RulerContext contextAt(const QPoint& position) const;

    /// Whether the user holds the ruler, as Ruler::isHeld() says, or the strip.
    bool isHeld() const;

public Q_SLOTS:
    /// Performs an operation; unknown codes do nothing.
    void onZoomTimeLineOperation(CorvelGui::ZoomTimelineOperation operation);
    /// The user moved the strip's box to a relative position.
    void onViewAreaPositionChanged(double position);
    /// The ruler's level changed.
    void onChangeSliderPosition(int level);
    /// Moves the ruler's preview line; 0 clears it.
    void onChangedPreviewIndicatorTime(quint64 msecs);

Q_SIGNALS:
    /// Emitted when isHeld() changed: before what a press does, and after what a release does.
    void heldChanged(bool held);
    void activityVisibleChanged(bool visible);
    void lanesVisibleChanged(bool visible);
    /// As TimelineLanes::currentTrackChanged().
    void currentTrackChanged(const QString& identifier);
    /// As that of the ruler and that of the lanes.
    void contextRequested(const CorvelGui::RulerContext& context);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void connectNotify(const QMetaMethod& signal) override;

private:
    void tellHeld();
    void arrange();
    double viewCenter() const;
    void onViewAreaResized(double begin, double end);
    void turnWheelOnStrip(const QWheelEvent* event);
    void updateViewArea();
    void updateSearchTimeRange();
    void updateSelectedRange();
    void updateSearchDisplay();

    Ruler* const m_ruler;
    // Made in the order in which Tab reaches them.
    TimelineLanes* const m_lanes;
    Zoomer* const m_zoomer;
    TimelineScroll* const m_scroll;
    QDateTime m_searchBegin;
    QDateTime m_searchEnd;
    bool m_theme = true;
    bool m_resultMode = false;
    bool m_lanesVisible = false;
    bool m_toldHeld = false;
    bool m_searchDisplayed = false; ///< outside result mode
};

} // namespace CorvelGui
