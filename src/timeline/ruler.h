// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/RulerContext>
#include <CorvelGui/RulerMarker>
#include <CorvelGui/TimelineActivity>
#include <CorvelGui/TrackDescription>
#include <CorvelGui/corvelgui_export.h>

#include <QColor>
#include <QDateTime>
#include <QSize>
#include <QWidget>

#include <memory>
#include <utility>

namespace CorvelGui {

struct MarkerSymbol;
struct FineTime;

/// The time ruler: a horizontal, zoomable scale over a recording period, with a play indicator and
/// the recorded spans of the described tracks.
///
/// Absolute times are milliseconds since the Unix epoch. Those of limits, indicator and preview are
/// unsigned, and 0 stands for none; those of spans and of the view are signed, since a view may
/// begin before 1970. They count alike: a cast turns one into the other, but a negative time
/// becomes one far in the future. A relative position is 0.0 at the begin limit of the period and
/// 1.0 at its end limit. Until setTimeLimits() is called with a period there is no view, and only
/// the bands are drawn. Setters are silent about what their caller set; signals say what that does
/// to the view.
///
/// A new ruler is inactive: until setActive(true, false) it shows neither markers nor indicator,
/// and keys do nothing. Its minimum width is 800 pixels; a client may set another one.
class CORVELGUI_EXPORT Ruler : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(FollowMode followMode READ followMode WRITE setFollowMode NOTIFY followModeChanged)
    Q_PROPERTY(bool following READ isFollowing NOTIFY followingChanged)
    Q_PROPERTY(bool continuousZoom READ isContinuousZoom WRITE setContinuousZoom NOTIFY
                   continuousZoomChanged)
    Q_PROPERTY(
        bool calendarTicks READ hasCalendarTicks WRITE setCalendarTicks NOTIFY calendarTicksChanged)
    Q_PROPERTY(
        bool zoomHistory READ keepsZoomHistory WRITE setZoomHistory NOTIFY zoomHistoryChanged)
    Q_PROPERTY(bool canZoomBack READ canZoomBack NOTIFY zoomHistoryMoved)
    Q_PROPERTY(bool canZoomForward READ canZoomForward NOTIFY zoomHistoryMoved)
    Q_PROPERTY(bool markerDetails READ showsMarkerDetails WRITE setMarkerDetails NOTIFY
                   markerDetailsChanged)
    Q_PROPERTY(
        MergedClick mergedClick READ mergedClick WRITE setMergedClick NOTIFY mergedClickChanged)
    Q_PROPERTY(bool fineWheel READ isFineWheel WRITE setFineWheel NOTIFY fineWheelChanged)
    Q_PROPERTY(
        bool touchGestures READ hasTouchGestures WRITE setTouchGestures NOTIFY touchGesturesChanged)
    Q_PROPERTY(RangeSelection rangeSelection READ rangeSelection WRITE setRangeSelection NOTIFY
                   rangeSelectionChanged)
    Q_PROPERTY(CorvelGui::TimeSpan selectedRange READ selectedRange WRITE setSelectedRange NOTIFY
                   selectedRangeChanged DESIGNABLE false)
    Q_PROPERTY(QString timeZone READ timeZone WRITE setTimeZone)
    Q_PROPERTY(quint64 indicatorMSecs READ exactIndicatorMSecs WRITE setIndicatorPosition NOTIFY
                   indicatorPositionChanged DESIGNABLE false)
    Q_PROPERTY(bool indicatorDragEnabled READ isIndicatorDragEnabled WRITE setIndicatorDragEnabled)
    Q_PROPERTY(bool previewEnabled READ isPreviewEnabled WRITE setPreviewEnabled)
    Q_PROPERTY(
        bool searchTimeRangeDisplayed READ isSearchTimeRangeDisplayed WRITE displaySearchTimeRange)
    Q_PROPERTY(bool markersVisible READ areMarkersVisible WRITE setMarkersVisible)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize)
    Q_PROPERTY(bool orvaneGuiTheme READ hasOrvaneGuiTheme WRITE setOrvaneGuiTheme)
    Q_PROPERTY(uint fontSize READ fontSize WRITE setFontSize)
    Q_PROPERTY(QString dateFormat READ dateFormat WRITE setDateFormat)
    Q_PROPERTY(QColor headerColor READ headerColor WRITE setHeaderColor)
    Q_PROPERTY(QColor bodyColor READ bodyColor WRITE setBodyColor)
    Q_PROPERTY(bool resultMode READ isResultMode WRITE setResultMode)
    Q_PROPERTY(bool playMode READ isPlayMode WRITE setPlayMode)
    Q_PROPERTY(bool active READ isActive WRITE makeActive)
    Q_PROPERTY(bool blocked READ isBlocked WRITE setBlocked)
    Q_PROPERTY(
        bool edgeScrolling READ isEdgeScrolling WRITE setEdgeScrolling NOTIFY edgeScrollingChanged)

public:
    /// How the view goes after the indicator.
    enum class FollowMode {
        Off,      ///< just as far as it takes to show an indicator that is set outside the view
        Pages,    ///< by whole views, when the indicator leaves the view
        Centered, ///< at every step, with the indicator in the middle
        Smooth ///< at every step, while the indicator is in the first or last quarter of the view
    };
    Q_ENUM(FollowMode)
    using enum FollowMode; // uic of Qt 6.4 leaves out its name

    /// What a click on the symbol of merged markers does.
    enum class MergedClick {
        Jump, ///< to the marker that stands for the others
        List, ///< shows a list of them
        Zoom  ///< shows a view in which they fall apart, or the list where there is none
    };
    Q_ENUM(MergedClick)
    using enum MergedClick;

    /// How the user selects a range.
    enum class RangeSelection {
        NoSelection, ///< not at all
        ShiftDrag,   ///< by a drag with Shift
        Drag         ///< by a drag; one with Shift moves the view
    };
    Q_ENUM(RangeSelection)
    using enum RangeSelection;

    explicit Ruler(QWidget* parent = nullptr);
    ~Ruler() override;

    // The period

    /// Sets the recording period. The zoom level stays; the first period puts the view at its
    /// begin; an indicator outside moves to the nearer limit. An empty period (also one that ends
    /// before it begins) leaves an empty scale of one hour.
    void setTimeLimits(quint64 begin, quint64 end);
    std::pair<quint64, quint64> getTimeLimits() const;
    /// Length of the period in milliseconds.
    quint64 getTotalDuration() const;
    /// The zone of limits, indicator and labels, by IANA or Windows name; an empty or unknown name
    /// means the zone of this machine. It counts for times that are set or computed from the limits
    /// afterwards; what is stored keeps its zone.
    void setTimeZone(const QString& name);
    /// The IANA name of the zone that was set; empty for that of this machine.
    QString timeZone() const;
    /// Brings what is stored to the zone that setTimeZone() set, and reports the view on its clock.
    void applyTimeZone();
    /// What is known of the recorded tracks. Replaces what was set before.
    void setTrackDescriptions(const QList<TrackDescription>& tracks);
    /// What setTrackDescriptions() set, with the recordings that were added.
    QList<TrackDescription> trackDescriptions() const;
    /// Adds recordings to a described track, in any order, as recording goes on. A span at the end
    /// costs microseconds, however many there are. Returns false, and changes nothing, if no track
    /// with that identifier is described.
    bool addRecordedSpans(const QString& trackIdentifier, const QList<TimeSpan>& spans);

    /// Notes whether it is still to be known what is recorded in a span of a described track. Such
    /// spans look different from gaps, and what is recorded covers them. Neither this nor
    /// recordings move the view: those that come late, for a time out of view, do no harm. Returns
    /// false, and changes nothing, if no track with that identifier is described.
    bool setLoading(const QString& trackIdentifier, const TimeSpan& span, bool loading);

    // The view

    /// First instant in view; view() has it with a sign.
    quint64 beginTime() const;
    /// First instant behind the view; may lie behind the end limit.
    quint64 endTime() const;
    /// Number of rows of the zoom table: levels go from 0 (closest) to this number, which shows the
    /// whole period, as does a level with more in view than the period is long.
    ///
    /// | level | in view    | labels every | ticks every |
    /// |-------|------------|--------------|-------------|
    /// | 0     | 20 minutes | 2 minutes    | 15 seconds  |
    /// | 1     | 1 hour     | 5 minutes    | 1 minute    |
    /// | 2     | 3 hours    | 10 minutes   | 2 minutes   |
    /// | 3     | 12 hours   | 30 minutes   | 10 minutes  |
    /// | 4     | 1 day      | 1 hour       | 12 minutes  |
    /// | 5     | 3 days     | 3 hours      | 1 hour      |
    /// | 6     | 7 days     | 8 hours      | 4 hours     |
    /// | 7     | 14 days    | 1 day        | 12 hours    |
    int getNrOfZooomLevels() const;
    /// 1 at first. With continuousZoom, the level that is the nearest to the view.
    int level() const;
    /// Switches the zoom level. The instant at @p anchor (a fraction of the scale width, 0.0
    /// to 1.0) stays in place as far as the limits allow. An index outside the table shows the
    /// whole period.
    void changeLevel(int level, double anchor);
    /// Relative position of the centre of the view.
    double getCurrentCenterPosition() const;
    /// Relative position of @p time; negative before the begin limit, more than 1.0 after the end
    /// limit.
    double getPosition(const QDateTime& time) const;
    /// Pixels per millisecond at the current level; infinite while there is no period.
    double lengthPerMillisecond() const;

    /// From the first instant in view up to the first behind it; empty while there is no view. Its
    /// ends are times since the epoch, as all times of the functions from here to centerOn(), and
    /// may lie outside the limits.
    TimeSpan view() const;
    /// The time at column @p x of the widget, whether it is in view or not; 0 without a view.
    qint64 timeAt(double x) const;
    /// The column of a time, whether it is in view or not; 0.0 without a view.
    double xAt(qint64 msecs) const;
    /// Shows at least the range, in the middle of the view as far as the limits allow, at the
    /// closest level that holds it: a view that was asked for by view() comes back as it was. With
    /// continuousZoom it shows just the range, as far as that is no closer than one can zoom. Does
    /// nothing without a period or with a range that is empty or reversed.
    void setView(qint64 from, qint64 to);
    /// Brings a time into the middle of the view as far as the limits allow; the level stays.
    void centerOn(qint64 msecs);

    /// Whether the view may be of any length, from the whole period to 40 ms a hundred pixels, and
    /// not only as long as a level says. Off by default.
    ///
    /// Wheel and pinch then zoom about the pointer, and zoomIn() and zoomOut() about the indicator
    /// where it is in view: what is there stays there exactly, as far as the limits allow, unless
    /// the view is kept centred on the indicator. The levels can still be chosen: changeLevel() and
    /// the zoom control go to them, and search and result ranges are shown at them. The ticks are
    /// those of calendarTicks, whatever that says. Switched off, the view goes to the nearest
    /// level.
    bool isContinuousZoom() const;
    void setContinuousZoom(bool on);
    /// Whether the view can be closer or wider, by zoomIn() and zoomOut().
    bool canZoomIn() const;
    bool canZoomOut() const;

    /// Whether the views that are left by zooming are kept, for zoomBack() and zoomForward(), the
    /// keys Alt+Left, Alt+Right, Backspace and Shift+Backspace, and the buttons "back" and
    /// "forward" of a mouse. Off by default; switching it off forgets them. What one gesture, or
    /// several turns of the wheel in a row, do to the view counts as one step.
    bool keepsZoomHistory() const;
    void setZoomHistory(bool on);
    bool canZoomBack() const;
    bool canZoomForward() const;

    /// Whether small turns of a wheel or a touchpad add up to a step, or, with continuousZoom, zoom
    /// by just as much; and whether a sideways turn, or one with Shift, moves the view. Off by
    /// default: every turn is a whole step, and a sideways one zooms out.
    bool isFineWheel() const;
    void setFineWheel(bool on);

    /// Whether fingers on a touch screen drag the view, which runs out when it is let go in motion,
    /// zoom with two of them about what is between them, and ask for the context menu by staying
    /// where they are. Off by default: the first finger does what the left mouse button does, and a
    /// second one ends that. On markers, indicator and arrows the first finger always is the mouse.
    bool hasTouchGestures() const;
    void setTouchGestures(bool on);

    /// How the view follows the indicator, as it is set by setIndicatorPosition() and by keys. Off
    /// by default.
    ///
    /// In the other modes the view stays within the limits, the zoom control keeps the indicator in
    /// view, and the view yields to the user: it rests while he holds the timeline, and stays where
    /// any other move leaves it without the indicator (with Centered: without it in the middle). It
    /// goes on once it shows the indicator in its place again, and with resumeFollowing().
    FollowMode followMode() const;
    void setFollowMode(FollowMode mode);
    /// Whether there is a mode and the view has not yielded. Holding alone does not end it.
    bool isFollowing() const;

    // The indicator

    /// Moves the indicator; 0 takes it away. The view pages after it. Returns false when the
    /// indicator stays where it is, because the move is shorter than a pixel: only its label shows
    /// the new time, until the view changes.
    bool setIndicatorPosition(quint64 msecs);
    /// Where the indicator stands, in whole steps of a pixel; 0 if there is none.
    quint64 getIndicatorMSecs() const;
    /// The time that the indicator was given last, whatever its step.
    quint64 exactIndicatorMSecs() const;
    /// Relative position of the indicator.
    double getIndicatorPosition() const;
    /// The time of the preview line; 0 clears it. It is drawn while onPreviewVisible() says so.
    /// Always returns true.
    bool setPreviewIndicatorPosition(quint64 msecs);
    /// Whether the user's drag of the indicator emits indicatorPositionChanged() at every move, or
    /// only at its end, as at first.
    void setIndicatorDragEnabled(bool on);
    bool isIndicatorDragEnabled() const;
    /// Whether the view moves while the indicator is dragged to an end of the ruler or beyond. Off
    /// by default.
    bool isEdgeScrolling() const;
    void setEdgeScrolling(bool on);
    /// Whether a resting mouse asks for previews; off at first.
    void setPreviewEnabled(bool on);
    bool isPreviewEnabled() const;

    /// Whether the user holds the timeline: from the press of the left mouse button on the ruler,
    /// its indicator, a handle or one of its arrows, whether it becomes a drag or not, until the
    /// release. It also ends where the release may go elsewhere: with a move without the button, a
    /// second finger, an opened popup or modal window, and when the ruler is hidden, disabled,
    /// blocked or made inactive, or its window loses the activation. A press on a marker does not
    /// count.
    bool isHeld() const;

    // Search range and result range

    /// Stores the range, and with @p adjustZoom shows it at the closest level that holds it.
    /// Invalid or reversed times take the range away.
    void setSearchTimeRange(const QDateTime& from, const QDateTime& to, bool adjustZoom);
    void resetSearchTimeRange();
    void displaySearchTimeRange(bool display);
    bool isSearchTimeRangeDisplayed() const;
    /// The stored range, whether it is displayed or not; empty without one.
    TimeSpan searchTimeRange() const;
    /// Marks a range that was found: with @p markBegin and @p markEnd at its ends, with @p
    /// onlyInside by showing only the event markers inside it. @p adjustZoom as for a search range.
    /// Invalid times clear the range.
    void setResultTimeRange(const QDateTime& from, const QDateTime& to, bool markBegin,
                            bool markEnd, bool onlyInside, bool adjustZoom);
    /// Empty without one.
    TimeSpan resultTimeRange() const;

    /// How the user selects a range, which is another one than those above. Off by default.
    ///
    /// The ends of the range have handles, to be dragged, or reached by Tab and moved by Left,
    /// Right, Home and End. A dragged end snaps to edges of recordings and to markers a few pixels
    /// away, unless Ctrl is held, moves the view at the ends of the ruler, and shows the length of
    /// the range; Escape brings the range back. The keys I and O put begin and end to the
    /// indicator, or, where there is none, to the mouse, and Delete takes the range away.
    RangeSelection rangeSelection() const;
    void setRangeSelection(RangeSelection how);
    /// The selected range, which is shown whatever rangeSelection() says: always within the limits,
    /// and empty without one. New limits cut it, and take it away where it is outside.
    TimeSpan selectedRange() const;
    void setSelectedRange(const TimeSpan& range);
    /// Puts one end of the selected range to a time within the limits, as the keys I and O do: the
    /// other end stays, or, where that makes no range, goes to its limit.
    void setSelectedRangeBegin(qint64 msecs);
    void setSelectedRangeEnd(qint64 msecs);

    /// What is recorded in the period, and how many markers begin when, in @p columns parts of
    /// equal duration: one pass over all of them. Empty without a period.
    TimelineActivity activity(int columns) const;

    // Markers

    /// Adds markers; those without a valid time are left out. They show on an active ruler.
    void onAddMarkers(const QList<RulerMarker>& markers);
    /// Removes, for each of @p markers, the first marker that has its time.
    void onRemoveMarkers(const QList<RulerMarker>& markers);
    void onClearMarkers();
    void onShowMarkers();
    void onHideMarkers();
    /// Whether onShowMarkers() was called last, as it is at first.
    bool areMarkersVisible() const;
    /// Calls onShowMarkers() or onHideMarkers().
    void setMarkersVisible(bool visible);
    /// Gives the markers icons of about half the size plus 6 pixels in each direction.
    void setIconSize(const QSize& size);
    /// The size that was set, 20 by 20 pixels at first.
    QSize iconSize() const;

    /// Whether markers show more than their times: a bar at the foot of the ruler for each that
    /// lasts, in the colour of its severity, a sign of the severity under its symbol, and under one
    /// of merged markers their number in the colour of the worst. Off by default.
    bool showsMarkerDetails() const;
    void setMarkerDetails(bool on);
    /// What a click on the symbol of merged markers does; Jump by default. Otherwise Return does
    /// the same with the symbol that is nearest to the indicator, a symbol's width away at most.
    MergedClick mergedClick() const;
    void setMergedClick(MergedClick action);

    // What is at a place

    /// What is at a position of the ruler.
    RulerContext contextAt(const QPoint& position) const;
    /// The markers that the symbol at a position stands for, the first @p most of them.
    QList<RulerMarker> markersAt(const QPoint& position, qsizetype most = 100) const;
    /// The ranges that are shown at a time.
    RulerContext::Ranges rangesAt(qint64 msecs) const;

    // Appearance and state

    /// True puts the theme's colours in, which a new ruler does not wear yet. False leaves the
    /// colours as they are, and changes the indicator's only.
    void setOrvaneGuiTheme(bool on);
    /// What was set last, on at first: then the indicator wears the theme's colour.
    bool hasOrvaneGuiTheme() const;
    /// Point size of all text on the ruler, from 1 to 200; 8 at first.
    void setFontSize(unsigned int points);
    unsigned int fontSize() const;
    /// Whether the ticks stand at steps that people count in, from milliseconds to centuries: as
    /// close as their labels have room, so that none is cut or meets another, at every width and
    /// font. Off by default: at the steps of the level.
    ///
    /// Days then begin at local midnight also after a clock change. Clock changes are marked, with
    /// the time before and after, and the repeated hour is tinted; labels in it, also that of the
    /// indicator, say which of the two they mean by the distance from UTC. Close up, the
    /// indicator's label shows milliseconds.
    bool hasCalendarTicks() const;
    void setCalendarTicks(bool on);
    /// Format of date labels, as QDateTime::toString() takes it, "dd.MM.yy" at first. Shows with
    /// the next repaint.
    void setDateFormat(const QString& format);
    QString dateFormat() const;
    /// Stores the colour. It shows in the gradients once the theme is applied again.
    void setHeaderColor(const QColor& color);
    QColor headerColor() const;
    /// Stores the colour. It shows with the next repaint.
    void setBodyColor(const QColor& color);
    QColor bodyColor() const;
    /// In result mode there is no indicator, and a click does not place one.
    void setResultMode(bool on);
    bool isResultMode() const;
    /// Selects the indicator's colour; on at first. Shows when the theme is applied again.
    void setPlayMode(bool on);
    bool isPlayMode() const;
    /// An inactive ruler has no indicator and keeps its children as they are. A blocked one ignores
    /// the mouse.
    void setActive(bool active, bool blocked);
    /// Each is setActive() with the other value as it is. Both are off at first.
    void makeActive(bool active);
    bool isActive() const;
    void setBlocked(bool blocked);
    bool isBlocked() const;
    /// Derives height and layout from the height of the indicator's label.
    void updateSize();
    /// Brings indicator and markers in line with the view, while the ruler is active. Markers are
    /// grouped again wherever the view or they have changed, whatever @p merge says.
    void updateChildren(bool merge);

    /// While blocked, view changes are noted instead of reported. Unblocking reports nothing.
    void blockSignalTimeLineViewChanged(bool block);
    /// Reports a noted view change, once, with the moving flag cleared.
    void processTimeLineViewChanges();

public Q_SLOTS:
    /// As changeLevel(), unless @p level is current or negative.
    void onZoomerIn(int level, double anchor);
    /// As changeLevel() while the view can grow; else only reports the current level again.
    void onZoomerOut(int level, double anchor);
    /// Half as much in view, or, without continuousZoom, the next level about the middle.
    void zoomIn();
    /// Twice as much in view, or, without continuousZoom, the next level about the middle.
    void zoomOut();
    /// Shows the view again that the last zoom left, as far as the limits allow.
    void zoomBack();
    /// Takes the last zoomBack() back.
    void zoomForward();
    /// Brings the view back to the indicator and follows it from there. Does nothing without a
    /// mode.
    void resumeFollowing();
    /// Centres the view on a relative position, without regard to the limits.
    void onTimelineOffsetChanged(double position);
    /// Performs an operation on the markers; unknown codes do nothing.
    void onMarkerOperation(CorvelGui::RulerMarkerOperation operation);
    /// Shows or hides the preview line. @p pending says that a preview is being fetched.
    void onPreviewVisible(bool visible, bool pending);
    /// Announces the current view on the next turn of the event loop.
    void onTimeLineViewSettingsNeeded();

Q_SIGNALS:
    void followModeChanged(CorvelGui::Ruler::FollowMode mode);
    /// Emitted when isFollowing() changed, after what changed it.
    void followingChanged(bool following);
    void continuousZoomChanged(bool on);
    void calendarTicksChanged(bool on);
    void zoomHistoryChanged(bool on);
    /// Emitted when canZoomBack() or canZoomForward() changed, after what changed it.
    void zoomHistoryMoved();
    void fineWheelChanged(bool on);
    void touchGesturesChanged(bool on);
    /// Emitted after every change of level, every refused zoom request and every step of the wheel.
    void changeSliderZoom(int level);
    /// For clients that drive a zoom slider of their own; the ruler does not emit it.
    void changeSliderFraction(double fraction);
    /// Emitted when the user placed the indicator: by a click, at the end of a drag, by a key, and
    /// at every move of a drag if setIndicatorDragEnabled() says so.
    void indicatorPositionChanged(quint64 msecs, double position);
    void edgeScrollingChanged(bool on);
    void rangeSelectionChanged(CorvelGui::Ruler::RangeSelection how);
    /// Emitted when the user begins to change the selected range, before that: by a drag, by a key
    /// or with assistive technology.
    void rangeSelectionStarted();
    /// Emitted when selectedRange() changed, at every move of a drag.
    void selectedRangeChanged(const CorvelGui::TimeSpan& range);
    /// Emitted when the user has done what rangeSelectionStarted() said. @p cancelled tells that he
    /// took it back by Escape. Where a drag ends without a release, that is on the next turn of the
    /// event loop, except for setActive().
    void rangeSelectionEnded(bool cancelled);
    /// Emitted when isHeld() changed: before what a press does, and after the last report of what
    /// was done meanwhile. Where a hold ends without a release, that is on the next turn of the
    /// event loop, except for setActive().
    void heldChanged(bool held);
    /// Emitted when the described tracks or their recordings changed.
    void tracksChanged();
    /// Emitted when activity() may have changed: the limits, the tracks, their recordings or the
    /// markers.
    void activityChanged();
    /// Emitted when the view moved, except by onTimelineOffsetChanged() and, without a follow mode,
    /// by setIndicatorPosition().
    void centerPositionChanged(double position);
    /// Emitted when the view has not changed for 150 ms, first that long after somebody connected.
    /// @p added is what of it, within the limits, was not in the view that was told before; nothing
    /// after zooming in. A view that keeps moving, as one that follows may, does not settle.
    void viewSettled(const CorvelGui::TimeSpan& view, const QList<CorvelGui::TimeSpan>& added);
    /// Emitted when the user asks for a menu: by a right click, the menu key (at the indicator) or
    /// a long press. While nobody is connected, the parent gets the event.
    void contextRequested(const CorvelGui::RulerContext& context);
    void markerDetailsChanged(bool on);
    void mergedClickChanged(CorvelGui::Ruler::MergedClick action);
    /// Emitted when a merged symbol is to be listed or to fall apart, before that: the times of its
    /// first and its last marker, and how many there are.
    void mergedMarkersActivated(const QDateTime& first, const QDateTime& last, qsizetype count);
    /// Emitted when a marker was pressed, reached by a key, or chosen from the list of a symbol.
    void jumpToTime(const QDateTime& time, const QUuid& identifier);
    /// Emitted when a marker was double-clicked.
    void jumpToTrackTime(const QDateTime& time, const QUuid& identifier);
    /// Emitted with the times of markers that are in view for the first time, in order.
    void newVisibleRulerMarkers(const QList<QDateTime>& times);
    /// Asks for a preview of the time under the mouse at @p position, or of the marker whose button
    /// has its centre there (@p onMarker). A time of 0 means that no preview is wanted; when the
    /// mouse leaves or the ruler goes out of sight, that is said on the next turn of the event
    /// loop.
    void previewPositionChanged(quint64 msecs, const QPoint& position, bool onMarker);
    /// Emitted on the turn of the event loop after setPreviewIndicatorPosition() when the preview
    /// line stands in another column than the last preview was asked for.
    void previewIndicatorPositionChanged(const QPoint& position);
    /// Emitted when the view changed: the limits, the view without what lies before the begin
    /// limit, and whether more changes follow at once (@p moving).
    void timeLineViewChanged(const QDateTime& beginLimit, const QDateTime& endLimit,
                             const QDateTime& viewBegin, const QDateTime& viewEnd, bool moving);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void connectNotify(const QMetaMethod& signal) override;

private:
    void applyLook();
    void createGradients();
    void layOutChildren();
    void updateTrackSegments();
    void tellTracksChanged();
    void followView();
    void markersChanged();
    RulerContext contextOfColumn(double x) const;
    bool openByKey(const QKeyEvent* event);
    void openMerged(const MarkerSymbol& symbol);
    void setUpAccessibility();
    void setIndicatorTime(const QDateTime& time);
    void updateIndicator();
    void showIndicatorTime(quint64 msecs);
    void setLevelFromTimeRange(const QDateTime& from, const QDateTime& to);
    void showRange(qint64 from, qint64 to, bool isOneOfSeveral);
    void zoomAbout(double factor, double x);
    void zoomTo(double span, const FineTime& time, double x, bool moving);
    void reportZoomHistory();
    void goInZoomHistory(bool back);
    void changedTimeLineView(bool moving);
    void emitTimeLineViewChanged(bool moving);
    void zoom(int level, double anchor, bool keepIndicator);
    void viewMoved(bool moving);
    void viewMovedByUser(bool moving);
    bool followIndicator();
    bool bringIndicatorIntoView();
    void noticeView();
    void reportFollowing();

    friend class EdgeScroll; // carry out what the user does
    friend class RulerGestures;
    friend class RulerRange;
    friend class RulerTouch;
    friend class ZoomTimeline; // its strip resizes the view in many steps
    friend class RulerZoomInput;
    friend class ViewRest;
    friend class TimelineLanes; // shows the same view
    struct Private;
    struct Zoomed;
    void viewZoomed(const Zoomed& zoomed);
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
