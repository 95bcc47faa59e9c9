// SPDX-License-Identifier: MIT
#include "reviewstatusbar.h"

#include "data/reviewdata.h"
#include "export/exportpanel.h"
#include "look/elidedlabel.h"
#include "look/zonecombo.h"
#include "session/clock.h"

#include <QLabel>
#include <QLocale>

namespace Review {

ReviewStatusBar::ReviewStatusBar(Clock& clock, QWidget* parent)
    : Translated(parent)
    , m_clock(clock)
    , m_counts(new ElidedLabel(this))
    , m_export(new ExportPanel(this))
    , m_zone(new ZoneCombo(clock.zoneName(), this))
    , m_zoneLabel(new QLabel(this))
{
    m_counts->setContentsMargins(6, 0, 0, 0);
    // On a narrow window it gives way to what happens.
    m_counts->setMinimumWidth(1);
    m_zoneLabel->setBuddy(m_zone);
    addWidget(m_counts);
    addPermanentWidget(m_export);
    addPermanentWidget(m_zoneLabel);
    addPermanentWidget(m_zone);

    connect(m_zone, &ZoneCombo::zoneChanged, this, &ReviewStatusBar::chooseZone);
    connect(m_zone, &ZoneCombo::zoneRefused, this, &ReviewStatusBar::refuseZone);
    // A message does not make room for what appears beside it.
    connect(m_export, &ExportPanel::exportingChanged, this, &QStatusBar::clearMessage);
    connect(&clock, &Clock::changed, this, [this] {
        m_zone->setZone(m_clock.zoneName());
        clearMessage();
    });
    retranslate();
}

void ReviewStatusBar::setCounts(const ReviewData& review)
{
    m_tracks = review.tracks.size();
    m_recordings = review.recordingCount();
    m_events = review.events.size();
    retranslate();
}

void ReviewStatusBar::tell(const QString& sentence)
{
    constexpr int readingTime = 8'000; // milliseconds
    showMessage(sentence, readingTime);
}

void ReviewStatusBar::chooseZone(const QString& zoneName)
{
    m_clock.setZone(zoneName);
    Q_EMIT zoneChosen();
}

void ReviewStatusBar::refuseZone(const QString& text)
{
    tell(tr("There is no time zone “%1”. Times stay in %2.").arg(text, m_clock.times().zoneName()));
}

void ReviewStatusBar::retranslate()
{
    const QLocale locale;
    m_counts->setText(tr("Cameras: %1    Recordings: %2    Events: %3")
                          .arg(locale.toString(m_tracks), locale.toString(m_recordings),
                               locale.toString(m_events)));
    m_zoneLabel->setText(tr("Time zone"));
}

} // namespace Review
