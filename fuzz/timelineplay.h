// SPDX-License-Identifier: MIT
#pragma once

#include "timelinestage.h"
#include "timelinevalues.h"

#include <array>

/// One play on a ruler or a zoom timeline: what a client may call, what a user may do, in any
/// order, and inside signals as well.
class TimelinePlay
{
public:
    TimelinePlay(const uint8_t* data, size_t size) : m_values(data, size), m_stage(m_values.flag())
    {}

    void run();

private:
    using Operation = void (TimelinePlay::*)();
    static const std::array<Operation, 36> operations;

    bool flag() { return m_values.flag(); }
    int number(int least, int most) { return m_values.number(least, most); }
    quint64 instant() { return m_values.instant(); }
    QDateTime time() { return m_values.time(); }
    QPoint place();
    Qt::MouseButton button() { return flag() || flag() ? Qt::LeftButton : Qt::RightButton; }

    CorvelGui::Ruler* ruler() const { return m_stage.ruler(); }
    CorvelGui::ZoomTimeline* timeline() const { return m_stage.timeline(); }
    void perform();

    // The client
    void setLimits();
    void setLimitsAndIndicator();
    void reset();
    void setZone();
    void setTracks();
    void changeLevel();
    void zoom();
    void center();
    void setIndicator();
    void setPreview();
    void setSearchRange();
    void displaySearchRange();
    void setResultRange();
    void addMarkers();
    void removeMarkers();
    void operateOnMarkers();
    void setIconSize();
    void setLook();
    void setFont();
    void setModes();
    void setActive();
    void blockViewChanges();
    void askForView();
    void resize();
    void setVisible();
    void armReaction();

    // The user
    void move();
    void press();
    void release();
    void drag();
    void turnWheel();
    void pressKey();
    void loseFocus();
    void passTime();
    void setAdditions();
    void changeView();

    TimelineValues m_values;
    TimelineStage m_stage;
    QList<CorvelGui::RulerMarker> m_added;
};
