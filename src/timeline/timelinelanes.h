// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/RulerContext>
#include <CorvelGui/corvelgui_export.h>

#include <QWidget>

#include <memory>

namespace CorvelGui {

class Ruler;

/// One lane for each track of a ruler, with its name and, in the columns of the ruler, what was
/// recorded, what is known to be without recording, and what nothing is known of. Beyond a limit of
/// lanes they scroll. The ruler's ranges, indicator and preview line go through them.
///
/// The user chooses a track by a click on its lane, or with Up, Down, Page Up, Page Down, Home and
/// End. The wheel scrolls the lanes over their names and with Shift; elsewhere it is the ruler's.
///
/// It shows what the ruler shows, and is to stand below it in the same window. Use it on the GUI
/// thread only.
class CORVELGUI_EXPORT TimelineLanes : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(
        QString currentTrack READ currentTrack WRITE setCurrentTrack NOTIFY currentTrackChanged)
    Q_PROPERTY(int maximumLanes READ maximumLanes WRITE setMaximumLanes NOTIFY maximumLanesChanged)
    Q_PROPERTY(int fontSize READ fontSize WRITE setFontSize STORED false)

public:
    /// Shows the tracks of @p ruler, which must live longer.
    explicit TimelineLanes(Ruler* ruler, QWidget* parent = nullptr);
    ~TimelineLanes() override;

    int laneCount() const;
    QString laneName(int lane) const;
    /// Identifier of its track.
    QString laneTrack(int lane) const;
    /// Where the lane stands in the widget; it may be scrolled out of it.
    QRect laneRect(int lane) const;
    /// The lane at a position of the widget; -1 where there is none.
    int laneAt(const QPoint& position) const;

    /// Identifier of the track whose lane is at a position of the widget; empty where there is
    /// none.
    QString trackAt(const QPoint& position) const;
    /// What is at a position of the widget. At names there is no time, and nowhere are markers.
    RulerContext contextAt(const QPoint& position) const;

    /// Identifier of the track whose lane is highlighted. One that no track has is kept until there
    /// is such a track. Empty by default.
    QString currentTrack() const;
    void setCurrentTrack(const QString& identifier);
    /// The lane of the current track; -1 without one.
    int currentLane() const;

    /// So many lanes are in view at most, and fewer, down to one, where there is no room for them;
    /// the others are reached by scrolling. 8 by default, at least 1.
    int maximumLanes() const;
    void setMaximumLanes(int count);

    /// Point size of the names, from 1 to 200.
    void setFontSize(int points);
    /// That of the ruler at first.
    int fontSize() const;

    /// The width that the names want left of the ruler's columns: up to a third of this widget's.
    int namesWidth() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /// Emitted when another track became the current one, by the user or by setCurrentTrack().
    void currentTrackChanged(const QString& identifier);
    void maximumLanesChanged(int count);
    /// Emitted when laneCount() or namesWidth() may have changed.
    void lanesChanged();
    /// As Ruler::contextRequested().
    void contextRequested(const CorvelGui::RulerContext& context);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followTracks();
    void updateGeometryOfLanes();
    void updateScrollBar();
    void showCurrentLane();
    void reportCurrentLane();

    struct Private;
    const std::unique_ptr<Private> d;
};

} // namespace CorvelGui
