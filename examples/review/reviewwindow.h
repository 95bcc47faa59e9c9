#pragma once

#include "problemlist.h"
#include "reviewdata.h"
#include "timetexts.h"

#include <CorvelGui/PMainWindow>

class QAction;
class QLabel;
class QToolBar;
class QTreeView;

namespace Review {

class EventModel;
class PreviewCard;
class ProblemDock;
class RangePanel;
class TimelinePane;
class TrackModel;
class ZoneCombo;

/// The client's window: tracks and events, the timeline that shows the checked ones, and the lines
/// that could not be loaded.
class ReviewWindow : public CorvelGui::PMainWindow
{
    Q_OBJECT

public:
    /// @p zoneName is the zone of all times; an empty one means the zone of this machine.
    ReviewWindow(const ReviewData& review, const ProblemList& problems, const QString& zoneName,
                 bool dark, QWidget* parent = nullptr);

    /// Shows the day in the middle of the period, with the indicator on the first event after noon.
    void showMiddleDay();

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* createContent();
    void createActions(bool dark);
    void createStatusBar();
    void connectParts();
    void retranslate();

    void setZone(const QString& name);
    void showCheckedTracks();
    void showView();
    void showCurrentTime();
    void selectEvent(qsizetype index);
    void showPreview(qint64 msecs, const QPoint& position, bool onMarker);

    const ReviewData m_review;
    TimeTexts m_times;
    TrackModel* m_tracks;
    EventModel* m_events;
    QTreeView* m_trackView;
    QTreeView* m_eventView;
    QLabel* m_timeLabel;
    QLabel* m_viewLabel;
    RangePanel* m_ranges;
    TimelinePane* m_timeline;
    PreviewCard* m_preview;
    ProblemDock* m_problems = nullptr;

    QToolBar* m_toolBar;
    QAction* m_zoomIn;
    QAction* m_zoomOut;
    QAction* m_wholePeriod;
    QAction* m_earlier;
    QAction* m_later;
    QAction* m_showMarkers;
    QAction* m_showRanges;
    QAction* m_darkLook;

    QLabel* m_countsLabel;
    QLabel* m_zoneLabel;
    ZoneCombo* m_zone;
};

} // namespace Review
