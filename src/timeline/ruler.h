#pragma once

#include <CorvelGui/TrackDescription>
#include <CorvelGui/corvelgui_export.h>

#include <QDateTime>
#include <QWidget>

#include <memory>
#include <utility>

namespace CorvelGui {

/// The time ruler: a horizontal, zoomable scale over a recording period, with a play indicator and
/// the recorded spans of the described tracks.
///
/// Absolute times are milliseconds since the Unix epoch. A relative position is 0.0 at the begin
/// limit of the period and 1.0 at its end limit. Until setTimeLimits() is called with a period
/// there is no view, and only the bands are drawn. Setters are silent about what their caller set;
/// signals say what that does to the view.
class CORVELGUI_EXPORT Ruler : public QWidget
{
    Q_OBJECT

public:
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
    /// What is known of the recorded tracks. Replaces what was set before.
    void setTrackDescriptions(const QList<TrackDescription>& tracks);

    // The view

    /// First instant in view.
    quint64 beginTime() const;
    /// First instant behind the view; may lie behind the end limit.
    quint64 endTime() const;
    /// Number of rows of the zoom table: levels go from 0 (closest) to this number, which shows the
    /// whole period.
    int getNrOfZooomLevels() const;
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

    // The indicator

    /// Moves the indicator; 0 takes it away. The view pages after it. Returns false when the
    /// indicator stays where it is, because the move is shorter than a pixel.
    bool setIndicatorPosition(quint64 msecs);
    quint64 getIndicatorMSecs() const;
    /// Relative position of the indicator.
    double getIndicatorPosition() const;
    /// The time of the preview line; 0 clears it. It is drawn while onPreviewVisible() says so.
    /// Always returns true.
    bool setPreviewIndicatorPosition(quint64 msecs);

    // The search range

    /// Stores the range, and with @p adjustZoom shows it at the closest level that holds it.
    /// Invalid or reversed times take the range away.
    void setSearchTimeRange(const QDateTime& from, const QDateTime& to, bool adjustZoom);
    void resetSearchTimeRange();
    void displaySearchTimeRange(bool display);

    // Appearance and state

    /// True puts the theme's colours in. False leaves the colours as they are, and changes the
    /// indicator's only.
    void setOrvaneGuiTheme(bool on);
    /// Point size of all text on the ruler.
    void setFontSize(unsigned int points);
    /// Format of date labels, as QDateTime::toString() takes it. Shows with the next repaint.
    void setDateFormat(const QString& format);
    /// Stores the colour. It shows in the gradients once the theme is applied again.
    void setHeaderColor(const QColor& color);
    /// Stores the colour. It shows with the next repaint.
    void setBodyColor(const QColor& color);
    /// In result mode there is no indicator.
    void setResultMode(bool on);
    /// Selects the indicator's colour; shows when the theme is applied again.
    void setPlayMode(bool on);
    /// An inactive ruler has no indicator and keeps its children as they are. A blocked one ignores
    /// the mouse.
    void setActive(bool active, bool blocked);
    /// Derives height and layout from the height of the indicator's label.
    void updateSize();

    /// While blocked, view changes are noted instead of reported. Unblocking reports nothing.
    void blockSignalTimeLineViewChanged(bool block);
    /// Reports a noted view change, once, with the moving flag cleared.
    void processTimeLineViewChanges();

public Q_SLOTS:
    /// As changeLevel(), unless @p level is current or negative.
    void onZoomerIn(int level, double anchor);
    /// As changeLevel() while the view can grow; else only reports the current level again.
    void onZoomerOut(int level, double anchor);
    /// Centres the view on a relative position, without regard to the limits.
    void onTimelineOffsetChanged(double position);
    /// Shows or hides the preview line. @p pending says that a preview is being fetched.
    void onPreviewVisible(bool visible, bool pending);
    /// Announces the current view on the next turn of the event loop.
    void onTimeLineViewSettingsNeeded();

Q_SIGNALS:
    /// Emitted after every change of level and after every refused zoom request.
    void changeSliderZoom(int level);
    /// Emitted when the view moved, except by onTimelineOffsetChanged() and by paging after the
    /// indicator.
    void centerPositionChanged(double position);
    /// Emitted when the view changed: the limits, the view without what lies before the begin
    /// limit, and whether more changes follow at once (@p moving).
    void timeLineViewChanged(const QDateTime& beginLimit, const QDateTime& endLimit,
                             const QDateTime& viewBegin, const QDateTime& viewEnd, bool moving);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void createGradients();
    void updateTrackSegments();
    void updateChildren(bool merge);
    void showIndicatorTime(quint64 msecs);
    void setLevelFromTimeRange(const QDateTime& from, const QDateTime& to);
    void changedTimeLineView(bool moving);
    void emitTimeLineViewChanged(bool moving);
    bool canMoveViewPort(int direction) const;
    void moveViewPort(int direction);

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
