// SPDX-License-Identifier: MIT
#pragma once

#include "look/translated.h"

#include <QStatusBar>

class QLabel;

namespace Review {

class Clock;
class ElidedLabel;
class ExportPanel;
struct ReviewData;
class ZoneCombo;

/// How much there is to see, the export under way, the zone of all times, and what happened last.
class ReviewStatusBar : public Translated<QStatusBar>
{
    Q_OBJECT

public:
    /// @p clock must live longer.
    explicit ReviewStatusBar(Clock& clock, QWidget* parent = nullptr);

    void setCounts(const ReviewData& review);
    /// Shows a sentence for as long as it takes to read it.
    void tell(const QString& sentence);

    ExportPanel* exportPanel() const { return m_export; }

Q_SIGNALS:
    /// Emitted when the user has put the clock into another zone.
    void zoneChosen();

protected:
    void retranslate() final;

private:
    void chooseZone(const QString& zoneName);
    void refuseZone(const QString& text);

    Clock& m_clock;
    qsizetype m_tracks = 0;
    qsizetype m_recordings = 0;
    qsizetype m_events = 0;
    ElidedLabel* m_counts;
    ExportPanel* m_export;
    ZoneCombo* m_zone;
    QLabel* m_zoneLabel;
};

} // namespace Review
