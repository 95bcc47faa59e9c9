// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"

#include <CorvelGui/TrackDescription>

#include <QWidget>

class QCheckBox;

namespace CorvelGui {
class PPlaybar;
class PopupSliderToolButton;
class TarvoDateTimeView;
} // namespace CorvelGui

namespace Review {

class Clock;
class ElidedLabel;
class Selection;

/// What belongs to playing, in a row: the selected moment, the playbar, its speed, the switch for
/// gaps, and what the timeline shows.
class TransportBar : public Translated<QWidget>
{
    Q_OBJECT

public:
    /// Owns neither; both must live longer.
    TransportBar(const Clock& clock, Selection& selection, QWidget* parent = nullptr);

    CorvelGui::PPlaybar* playbar() const { return m_playbar; }
    CorvelGui::TarvoDateTimeView* timeView() const { return m_time; }
    /// A PPlaybar::PlaybackSpeed.
    CorvelGui::PopupSliderToolButton* speed() const { return m_speed; }
    QCheckBox* skipGaps() const { return m_skipGaps; }

    /// What there is to play. Without it the bar is disabled.
    void setPeriod(const CorvelGui::TimeSpan& period);
    /// What the timeline shows; empty for nothing.
    void setView(const CorvelGui::TimeSpan& view);

protected:
    void retranslate() final;

private:
    void createSpeed();
    void followClock();
    void showMoment();
    void showView();

    const Clock& m_clock;
    Selection& m_selection;
    CorvelGui::TimeSpan m_period;
    CorvelGui::TimeSpan m_view;
    CorvelGui::TarvoDateTimeView* m_time;
    CorvelGui::PPlaybar* m_playbar;
    CorvelGui::PopupSliderToolButton* m_speed;
    QCheckBox* m_skipGaps;
    ElidedLabel* m_viewLabel;
};

} // namespace Review
