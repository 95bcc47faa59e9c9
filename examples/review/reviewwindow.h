#pragma once

#include "problemlist.h"
#include "reviewdata.h"
#include "timetexts.h"

#include <CorvelGui/PMainWindow>

class QAction;
class QLabel;
class QMenu;

namespace Review {

class DevicePane;
class EventPane;
class PreviewCard;
class ProblemDock;
class RangePanel;
class TimelinePane;
class TimelineToolBar;
class ZoneCombo;

/// The client's window: cameras and events, the timeline that shows the checked ones, and the lines
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
    void createToolBar(bool dark);
    void createMenus();
    void createStatusBar();
    void connectParts();
    void retranslate();

    void setZone(const QString& name);
    void showCheckedTracks();
    void showView();
    void showCurrentTime();
    void showPreview(qint64 msecs, const QPoint& position, bool onMarker);

    const ReviewData m_review;
    TimeTexts m_times;
    DevicePane* m_devices;
    EventPane* m_events;
    QLabel* m_timeLabel;
    QLabel* m_viewLabel;
    RangePanel* m_ranges;
    TimelinePane* m_timeline;
    PreviewCard* m_preview;
    ProblemDock* m_problems = nullptr;

    TimelineToolBar* m_toolBar;
    QAction* m_darkLook;
    QMenu* m_fileMenu;
    QAction* m_quit;
    QMenu* m_viewMenu;

    QLabel* m_countsLabel;
    QLabel* m_zoneLabel;
    ZoneCombo* m_zone;
};

} // namespace Review
