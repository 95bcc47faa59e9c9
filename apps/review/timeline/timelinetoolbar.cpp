// SPDX-License-Identifier: MIT
#include "timelinetoolbar.h"

#include "followmenu.h"
#include "timelinepane.h"

#include <Hueloft/PIconHelper>

#include <QAction>

using Hueloft::PIconHelper;
using namespace Qt::StringLiterals;

namespace Review {

TimelineToolBar::TimelineToolBar(TimelinePane* timeline, QWidget* parent)
    : Translated(parent), m_timeline(timeline)
{
    setObjectName(u"timelineToolBar"_s);
    setMovable(false);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);

    m_zoomIn = addAction(PIconHelper::GetPlusIcon_32x32(true), QString());
    m_zoomOut = addAction(PIconHelper::GetMinusIcon_32x32(true), QString());
    m_wholePeriod = addAction(QString());
    addSeparator();
    m_earlier = addAction(QString());
    m_later = addAction(QString());
    m_moment = addAction(QString());
    m_follow = new FollowMenu(this);
    addSeparator();
    m_showMarkers = addAction(QString());
    m_showMarkers->setCheckable(true);
    m_showMarkers->setChecked(true);
    m_showRanges = addAction(QString());
    m_showRanges->setCheckable(true);
    // In menus only.
    m_previous = new QAction(this);
    m_next = new QAction(this);
    m_newest = new QAction(this);
    m_newest->setObjectName(u"newestRecording"_s);
    for (QAction** action :
         {&m_dragSelects, &m_showActivity, &m_showLanes, &m_showEventDetails, &m_freeZoom}) {
        *action = new QAction(this);
        (*action)->setCheckable(true);
    }

    m_zoomIn->setShortcut(QKeySequence::ZoomIn);
    m_zoomOut->setShortcut(QKeySequence::ZoomOut);
    m_wholePeriod->setShortcut(Qt::CTRL | Qt::Key_0);
    // Some desktops keep Ctrl+Alt with arrows to themselves.
    m_previous->setShortcut(Qt::CTRL | Qt::Key_Backspace);
    m_next->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Backspace);
    m_earlier->setShortcut(Qt::ALT | Qt::Key_Left);
    m_later->setShortcut(Qt::ALT | Qt::Key_Right);
    m_moment->setShortcut(Qt::CTRL | Qt::Key_T);
    m_newest->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_L);

    connect(m_zoomIn, &QAction::triggered, timeline, &TimelinePane::zoomIn);
    connect(m_zoomOut, &QAction::triggered, timeline, &TimelinePane::zoomOut);
    connect(m_wholePeriod, &QAction::triggered, timeline, &TimelinePane::showWholePeriod);
    connect(m_previous, &QAction::triggered, timeline, &TimelinePane::showPreviousView);
    connect(m_next, &QAction::triggered, timeline, &TimelinePane::showNextView);
    connect(m_freeZoom, &QAction::toggled, timeline, &TimelinePane::setFreeZoom);
    connect(m_dragSelects, &QAction::toggled, timeline, &TimelinePane::setDragSelects);
    connect(m_follow, &FollowMenu::modeChanged, timeline, &TimelinePane::setFollowMode);
    connect(m_earlier, &QAction::triggered, timeline, &TimelinePane::stepEarlier);
    connect(m_later, &QAction::triggered, timeline, &TimelinePane::stepLater);
    connect(m_moment, &QAction::triggered, timeline, &TimelinePane::showMoment);
    connect(m_showMarkers, &QAction::toggled, timeline, &TimelinePane::setMarkersShown);
    connect(m_showActivity, &QAction::toggled, timeline, &TimelinePane::setActivityShown);
    connect(m_showLanes, &QAction::toggled, timeline, &TimelinePane::setLanesShown);
    connect(m_showEventDetails, &QAction::toggled, timeline, &TimelinePane::setEventDetailsShown);
    connect(timeline, &TimelinePane::viewChanged, this, &TimelineToolBar::showState);
    connect(timeline, &TimelinePane::followingChanged, this, &TimelineToolBar::showState);
    retranslate();
    showState();
}

QList<QAction*> TimelineToolBar::viewActions() const
{
    return {m_zoomIn,       m_zoomOut,     m_wholePeriod,     m_previous,
            m_next,         m_freeZoom,    nullptr,           m_earlier,
            m_later,        m_moment,      m_newest,          m_follow->menuAction(),
            nullptr,        m_showMarkers, m_showRanges,      m_dragSelects,
            m_showActivity, m_showLanes,   m_showEventDetails};
}

void TimelineToolBar::retranslate()
{
    setWindowTitle(tr("Timeline"));
    m_zoomIn->setText(tr("Zoom &in"));
    m_zoomOut->setText(tr("Zoom &out"));
    m_wholePeriod->setText(tr("&Whole period"));
    m_previous->setText(tr("&Previous view"));
    m_next->setText(tr("Ne&xt view"));
    m_freeZoom->setText(tr("&Zoom freely"));
    m_earlier->setText(tr("&Earlier"));
    m_later->setText(tr("&Later"));
    m_moment->setText(tr("&Current time"));
    m_moment->setToolTip(tr("Brings the time that is shown back into the view of the timeline"));
    m_newest->setText(tr("&Newest recording"));
    m_showMarkers->setText(tr("E&vents"));
    m_showMarkers->setToolTip(tr("Shows the events on the timeline"));
    m_showRanges->setText(tr("&Ranges"));
    m_showRanges->setToolTip(tr("Sets a search range and a result range"));
    m_dragSelects->setText(tr("&Drag to select a range"));
    m_showActivity->setText(tr("&Activity in the overview"));
    m_showLanes->setText(tr("Cameras on the &timeline"));
    m_showEventDetails->setText(tr("N&umber and severity of events"));
}

void TimelineToolBar::showState()
{
    m_zoomIn->setEnabled(m_timeline->canZoomIn());
    m_zoomOut->setEnabled(m_timeline->canZoomOut());
    m_wholePeriod->setEnabled(!m_timeline->showsWholePeriod());
    m_previous->setEnabled(m_timeline->hasPreviousView());
    m_next->setEnabled(m_timeline->hasNextView());
    m_earlier->setEnabled(m_timeline->canStepEarlier());
    m_later->setEnabled(m_timeline->canStepLater());
    m_moment->setEnabled(!m_timeline->isFollowing());
    m_newest->setEnabled(!m_timeline->view().isEmpty());
}

} // namespace Review
