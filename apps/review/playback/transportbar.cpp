// SPDX-License-Identifier: MIT
#include "transportbar.h"

#include "look/elidedlabel.h"
#include "look/flowlayout.h"
#include "session/clock.h"
#include "session/selection.h"
#include "speedmenu.h"

#include <CorvelGui/PPlaybar>
#include <CorvelGui/PSlider>
#include <CorvelGui/PopupSliderToolButton>
#include <CorvelGui/TarvoDateTimeView>

#include <QCheckBox>

using CorvelGui::PopupSliderToolButton;
using CorvelGui::PPlaybar;
using CorvelGui::TarvoDateTimeView;
using CorvelGui::TimeSpan;

namespace Review {

TransportBar::TransportBar(const Clock& clock, Selection& selection, QWidget* parent)
    : Translated(parent)
    , m_clock(clock)
    , m_selection(selection)
    , m_time(new TarvoDateTimeView(this))
    , m_playbar(new PPlaybar(this))
    , m_speed(new PopupSliderToolButton(this))
    , m_skipGaps(new QCheckBox(this))
    , m_viewLabel(new ElidedLabel(this))
{
    m_time->setPlayMode(false);
    createSpeed();
    // Leaves the space bar to the player after a click.
    m_skipGaps->setFocusPolicy(Qt::TabFocus);
    m_viewLabel->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    m_viewLabel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);

    auto* layout = new FlowLayout(this);
    layout->setContentsMargins(8, 2, 8, 2);
    layout->setSpacing(16);
    layout->addWidget(m_time);
    layout->addWidget(m_playbar);
    layout->addWidget(m_speed);
    layout->addWidget(m_skipGaps);
    layout->addWidget(m_viewLabel);
    connect(m_time, &TarvoDateTimeView::jumoToTime, &selection,
            [&selection](const QDateTime& time) { selection.goTo(time.toMSecsSinceEpoch()); });
    connect(&selection, &Selection::momentChanged, this, &TransportBar::showMoment);
    connect(&clock, &Clock::changed, this, &TransportBar::followClock);
    setPeriod({});
    retranslate();
}

// Shows what the playbar's own text would, and sets it.
void TransportBar::createSpeed()
{
    m_playbar->setSpeedVisible(false);
    m_speed->setFocusPolicy(Qt::TabFocus);
    m_speed->setLimits(PPlaybar::SpeedZero, PPlaybar::Speed1024);
    const auto text = [](int speed) {
        return SpeedMenu::textOf(PPlaybar::PlaybackSpeed(speed));
    };
    m_speed->slider()->setValueText(text);
    CorvelGui::PSlider::TickTexts ticks;
    for (const int speed : {PPlaybar::SpeedZero, PPlaybar::Speed1, PPlaybar::Speed8,
                            PPlaybar::Speed64, PPlaybar::Speed1024})
        ticks.insert(speed, text(speed));
    m_speed->slider()->setTickTexts(ticks);
    m_speed->setMinimumWidth(m_speed->fontMetrics().horizontalAdvance(text(PPlaybar::Speed1024)) +
                             2 * m_speed->fontMetrics().height());
    const auto show = [this, text](int speed) {
        m_speed->setText(text(speed));
    };
    connect(m_speed, &PopupSliderToolButton::valueChanged, m_speed, show);
    show(m_speed->value());
}

void TransportBar::setPeriod(const TimeSpan& period)
{
    m_period = period;
    for (QWidget* part : QList<QWidget*>{m_time, m_playbar, m_speed, m_skipGaps})
        part->setEnabled(!period.isEmpty());
    followClock();
}

void TransportBar::followClock()
{
    const TimeTexts& times = m_clock.times();
    const auto inZone = [&times](qint64 msecs) {
        return QDateTime::fromMSecsSinceEpoch(msecs, times.zone());
    };
    m_time->setDateFormat(times.format().datePattern());
    m_time->setJumpLimits(inZone(m_period.begin), inZone(m_period.end));
    showMoment();
    showView();
}

void TransportBar::setView(const TimeSpan& view)
{
    m_view = view;
    showView();
}

void TransportBar::showMoment()
{
    const qint64 msecs = m_selection.moment();
    m_time->updateDateTime(msecs > 0 ? QDateTime::fromMSecsSinceEpoch(msecs, m_clock.times().zone())
                                     : QDateTime());
}

void TransportBar::showView()
{
    const TimeTexts& times = m_clock.times();
    m_viewLabel->setText(m_view.isEmpty() ? tr("There is nothing to show.")
                                          : tr("%1 – %2 (%3)")
                                                .arg(times.dateTime(m_view.begin),
                                                     times.dateTime(m_view.end), times.zoneName()));
}

void TransportBar::retranslate()
{
    m_speed->setAccessibleName(tr("Speed"));
    m_speed->setToolTip(tr("Speed"));
    m_skipGaps->setText(tr("Skip gaps"));
    m_skipGaps->setToolTip(tr("Leaves out the times without a recording of the camera"));
    showView();
}

} // namespace Review
