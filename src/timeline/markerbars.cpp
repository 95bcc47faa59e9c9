// SPDX-License-Identifier: MIT
#include "markerbars.h"

#include "base/devicegrid.h"
#include "markerstore.h"
#include "severitycolors.h"
#include "timescale.h"
#include "tracksegments.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace CorvelGui {

namespace {

constexpr double markerBarHeight = 4.0;

} // namespace

MarkerBars markerBars(const MarkerStore& store, const TimeScale& scale,
                      const std::optional<TimeSpan>& range)
{
    MarkerBars bars;
    if (!scale.hasView())
        return bars;
    const TimeSpan view{scale.msecsAt(0.0), scale.msecsAt(scale.width()) + 1};
    const auto column = qint64(1.0 / scale.lengthPerMillisecond());
    store.forEachLasting(view, column, [&](const TimeSpan& span, RulerMarker::Severity severity) {
        if (range && (span.begin < range->begin || span.begin > range->end))
            return;
        // They come in the order of their begins.
        TimeSpans& spans = bars[std::size_t(severity)];
        if (!spans.empty() && span.begin <= spans.back().end)
            spans.back().end = std::max(spans.back().end, span.end);
        else
            spans.push_back(span);
    });
    return bars;
}

void drawMarkerBars(QPainter& painter, const MarkerBars& bars, const TimeScale& scale,
                    const QRect& area)
{
    const DeviceGrid grid(painter);
    const double bottom = area.bottom() + 1;
    for (std::size_t severity = 0; severity < bars.size(); ++severity) {
        const QColor color = severityColor(RulerMarker::Severity(severity));
        for (const TrackSegment& segment : visibleSegments(bars[severity], scale)) {
            const QRectF bar(QPointF(segment.start, bottom - markerBarHeight),
                             QPointF(segment.end, bottom));
            painter.fillRect(grid.aligned(bar), color);
        }
    }
}

} // namespace CorvelGui
