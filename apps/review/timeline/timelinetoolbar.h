// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"

#include <QToolBar>

namespace Review {

class FollowMenu;
class TimelinePane;

/// What can be done to the view of a timeline: buttons and shortcuts, enabled while they can do
/// something.
class TimelineToolBar : public Translated<QToolBar>
{
    Q_OBJECT

public:
    explicit TimelineToolBar(TimelinePane* timeline, QWidget* parent = nullptr);

    /// The actions as a menu shows them, with null pointers for separators.
    QList<QAction*> viewActions() const;
    /// Goes to the newest recording.
    QAction* newest() const { return m_newest; }
    /// Checkable: whether the panel for ranges is shown.
    QAction* showRanges() const { return m_showRanges; }
    /// Checkable: whether the overview shows what is recorded and how much happens.
    QAction* showActivity() const { return m_showActivity; }
    /// Checkable: whether the timeline counts the events of a symbol and shows how bad they are.
    QAction* showEventDetails() const { return m_showEventDetails; }
    /// Checkable: whether the timeline has a lane for each camera.
    QAction* showLanes() const { return m_showLanes; }
    /// Checkable: whether a drag on the timeline selects a range.
    QAction* dragSelects() const { return m_dragSelects; }
    /// Checkable: whether the view may be of any length.
    QAction* freeZoom() const { return m_freeZoom; }
    FollowMenu* followMenu() const { return m_follow; }

protected:
    void retranslate() final;

private:
    void showState();

    TimelinePane* m_timeline;
    QAction* m_zoomIn;
    QAction* m_zoomOut;
    QAction* m_wholePeriod;
    QAction* m_previous;
    QAction* m_next;
    QAction* m_freeZoom;
    QAction* m_earlier;
    QAction* m_later;
    QAction* m_moment;
    QAction* m_newest;
    FollowMenu* m_follow;
    QAction* m_showMarkers;
    QAction* m_showRanges;
    QAction* m_dragSelects;
    QAction* m_showActivity;
    QAction* m_showLanes;
    QAction* m_showEventDetails;
};

} // namespace Review
