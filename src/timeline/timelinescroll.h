// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/TimelineActivity>
#include <CorvelGui/corvelgui_export.h>

#include <QLabel>

#include <functional>
#include <memory>
#include <utility>

namespace CorvelGui {

/// The overview strip below the ruler: its width stands for the whole recording period, a box shows
/// which part of it is in view, a line the play indicator, and bands the search range and the
/// selected one.
///
/// The user drags the box, clicks beside it to page, or uses the keyboard: Left and Right move by a
/// tenth of the view, Page Up and Page Down by the view, Home and End to the ends of the period.
///
/// Positions are relative: 0.0 is the begin and 1.0 the end of the period. Setters are silent;
/// values outside that range are allowed and drawn as far as they can be seen. Use it on the GUI
/// thread only.
class CORVELGUI_EXPORT TimelineScroll : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(double viewArea READ viewArea WRITE setViewArea)
    Q_PROPERTY(double indicatorPosition READ indicatorPosition WRITE setIndicatorPosition)
    Q_PROPERTY(double centerPosition READ centerPosition WRITE onCenterPositionChanged NOTIFY
                   viewAreaMoved)
    Q_PROPERTY(bool active READ isActive WRITE setActive)
    Q_PROPERTY(bool orvaneGuiTheme READ hasOrvaneGuiTheme WRITE setOrvaneGuiTheme)
    Q_PROPERTY(bool resultMode READ isResultMode WRITE setResultMode)
    Q_PROPERTY(bool hover READ hasHover WRITE setHover)
    Q_PROPERTY(
        bool searchTimeRangeDisplayed READ isSearchTimeRangeDisplayed WRITE displaySearchTimeRange)
    Q_PROPERTY(bool activityVisible READ isActivityVisible WRITE setActivityVisible NOTIFY
                   activityVisibleChanged)

public:
    /// Starts inactive, with the whole period in view.
    explicit TimelineScroll(QWidget* parent = nullptr);
    ~TimelineScroll() override;

    /// The part of the period that is in view: its length as a fraction of the period. With 1.0 or
    /// more there is nothing to move.
    void setViewArea(double fraction);
    double viewArea() const;

    void setIndicatorPosition(double position);
    double indicatorPosition() const;

    /// The position of the view's centre: the latest of onCenterPositionChanged() and the user's.
    double centerPosition() const;

    /// Whether the strip shows what is recorded and how much happens, as the source says. Off by
    /// default.
    ///
    /// The strip is higher then, and has the margins of a ruler: under one of the same width,
    /// positions stand where the ruler has them while it shows the whole period. The box is exactly
    /// what the strip can show of the view, also of one that reaches beyond the period. Its edges
    /// can be dragged; Shift with Left and Right moves its end, and Ctrl its begin, by a tenth of
    /// its length.
    bool isActivityVisible() const;
    void setActivityVisible(bool visible);
    /// Says what there is to show, in columns of equal width. Asked when the strip is painted for
    /// the first time, with another width, or after renewActivity().
    void setActivitySource(std::function<TimelineActivity(int columns)> source);
    /// The position of a column of the strip while the activity is shown.
    double positionAt(double x) const;

    /// Whether the user holds the box, an edge of it, or the mouse beside it.
    bool isHeld() const;

    /// An inactive strip is disabled and shows nothing but its border.
    void setActive(bool active);
    bool isActive() const;

    /// True puts the theme's colours in. False leaves the colours as they are.
    void setOrvaneGuiTheme(bool on);
    /// What was set last; off at first.
    bool hasOrvaneGuiTheme() const;
    /// Stored for the owner; the strip looks and works the same in result mode.
    void setResultMode(bool on);
    bool isResultMode() const;
    /// True shows the box as if the mouse were on it.
    void setHover(bool hover);
    bool hasHover() const;

    /// The search range; it is drawn while it ends after it begins and displaySearchTimeRange()
    /// says so. Does nothing when both ends differ by at most 1e-5 from those before.
    void setSearchTimeRange(double begin, double end);
    void resetSearchTimeRange();
    void displaySearchTimeRange(bool display);
    /// Off at first.
    bool isSearchTimeRangeDisplayed() const;
    /// Begin and end; both are 0.0 without one.
    std::pair<double, double> searchTimeRange() const;

    /// The range that is selected; it is drawn while it ends after it begins. At first it does not.
    void setSelectedRange(double begin, double end);
    std::pair<double, double> selectedRange() const;

public Q_SLOTS:
    /// As setIndicatorPosition(); the absolute time @p msecs is not needed.
    void onIndicatorPositionChanged(quint64 msecs, double position);
    /// Moves the box.
    void onCenterPositionChanged(double position);
    /// The source has something else to say.
    void renewActivity();

Q_SIGNALS:
    /// Emitted when the user moves the box: at every mouse move of a drag, at every page (every
    /// 200 ms while the mouse is held beside the box, and once when it is released there), for the
    /// keys, and for assistive technology. Also emitted when the box cannot go any further.
    void viewAreaMoved(double centerPosition);
    /// Emitted when the user moves an edge of the box, with the positions of both ends that he
    /// wants. Until he lets go of the edge, or of Shift or Ctrl, the strip shows these, whatever
    /// view they lead to.
    void viewAreaResized(double begin, double end);
    void activityVisibleChanged(bool visible);
    /// Emitted when isHeld() changed: before the first move of the box, and after the last. Where
    /// the strip is hidden or disabled or its window loses the activation, that is on the next turn
    /// of the event loop.
    void heldChanged(bool held);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void updateStyleSheet();
    void onMoveViewAreaTimer();
    void translateViewAreaCenter();
    void moveView(double centerPosition);
    void gripBox(double x);
    void dragBox(double x);
    bool resizeByKey(const QKeyEvent* event);
    void moveEdge(double position, double shortest);
    void forgetWanted();
    void showCursor();
    void storeCenterPosition(double position);
    void endHold();
    void tellHeld();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
