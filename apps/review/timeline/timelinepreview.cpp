// SPDX-License-Identifier: MIT
#include "timelinepreview.h"

#include <CorvelGui/Ruler>
#include <CorvelGui/RulerMarkerButton>

#include <QChildEvent>
#include <QTimer>

#include <cmath>
#include <utility>

using CorvelGui::Ruler;
using CorvelGui::RulerMarkerButton;
using CorvelGui::TimeSpan;

namespace Review {

TimelinePreview::TimelinePreview(Ruler* ruler) : QObject(ruler), m_ruler(ruler)
{
    ruler->setPreviewEnabled(true);
    ruler->installEventFilter(this);
    connect(ruler, &Ruler::previewPositionChanged, this,
            [this](quint64 msecs, const QPoint& position, bool onMarker) {
                follow(qint64(msecs), position, onMarker);
            });
}

void TimelinePreview::follow(qint64 msecs, const QPoint& position, bool onMarker)
{
    // On a marker the ruler reports twice in a row: the marker, and the time under the mouse.
    if (std::exchange(m_markerReported, onMarker && msecs > 0) && msecs > 0 && !onMarker)
        return;
    if (m_markerReported)
        QTimer::singleShot(0, this, [this] { m_markerReported = false; });
    m_ruler->setPreviewIndicatorPosition(quint64(msecs));
    m_ruler->onPreviewVisible(msecs > 0, false);
    Q_EMIT changed(msecs, position.x(), onMarker ? symbolAt(msecs) : TimeSpan());
}

TimeSpan TimelinePreview::symbolAt(qint64 msecs) const
{
    constexpr double halfSymbol = 8; // pixels
    const qint64 reach = std::llround(halfSymbol / m_ruler->lengthPerMillisecond());
    return {.begin = msecs - reach, .end = msecs + reach + 1};
}

bool TimelinePreview::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_ruler && event->type() == QEvent::ChildAdded)
        static_cast<QChildEvent*>(event)->child()->installEventFilter(this);
    return event->type() == QEvent::ToolTip && qobject_cast<RulerMarkerButton*>(watched);
}

} // namespace Review
