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

class ProblemDock;
class TimelinePane;
class TrackModel;

/// The client's window: the tracks, the timeline that shows the checked ones, and the lines that
/// could not be loaded.
class ReviewWindow : public CorvelGui::PMainWindow
{
    Q_OBJECT

public:
    /// @p zoneName is the zone of all times; an empty one means the zone of this machine.
    ReviewWindow(const ReviewData& review, const ProblemList& problems, const QString& zoneName,
                 bool dark, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void createActions(bool dark);
    void retranslate();
    void showView();

    const ReviewData m_review;
    const TimeTexts m_times;
    TrackModel* m_tracks;
    QTreeView* m_trackView;
    TimelinePane* m_timeline;
    ProblemDock* m_problems = nullptr;

    QToolBar* m_toolBar;
    QAction* m_zoomIn;
    QAction* m_zoomOut;
    QAction* m_wholePeriod;
    QAction* m_earlier;
    QAction* m_later;
    QAction* m_darkLook;

    QLabel* m_viewLabel;
    QLabel* m_countsLabel;
};

} // namespace Review
