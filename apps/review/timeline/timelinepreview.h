// SPDX-License-Identifier: MIT
#pragma once

#include <CorvelGui/TrackDescription>

#include <QObject>

class QPoint;

namespace CorvelGui {
class Ruler;
} // namespace CorvelGui

namespace Review {

/// What the mouse rests on in a ruler, in one report; tooltips of markers are left out, because a
/// preview says more. Draws the ruler's line of the preview.
class TimelinePreview : public QObject
{
    Q_OBJECT

public:
    /// Belongs to @p ruler.
    explicit TimelinePreview(CorvelGui::Ruler* ruler);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The mouse rests at a time, with its column @p x in the ruler. On a symbol, that is the time
    /// of its marker, and @p symbol is the time that the symbol covers; otherwise it is empty. A
    /// time of 0 ends the preview.
    void changed(qint64 msecs, int x, const CorvelGui::TimeSpan& symbol);

private:
    void follow(qint64 msecs, const QPoint& position, bool onMarker);
    CorvelGui::TimeSpan symbolAt(qint64 msecs) const;

    CorvelGui::Ruler* m_ruler;
    bool m_markerReported = false;
};

} // namespace Review
