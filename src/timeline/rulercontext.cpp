// SPDX-License-Identifier: MIT
// What clients ask of a place of the ruler, and how the user asks for a menu there.

#include "rulercontext.h"

#include "ruler_p.h"

#include <QContextMenuEvent>
#include <QMetaMethod>

namespace CorvelGui {

RulerContext::Ranges Ruler::rangesAt(qint64 msecs) const
{
    const auto contains = [msecs](const TimeSpan& range) {
        return range.begin <= msecs && msecs < range.end;
    };
    RulerContext::Ranges ranges;
    ranges.setFlag(RulerContext::SearchRange,
                   d->searchDisplayed && d->searchRange && contains(*d->searchRange));
    ranges.setFlag(RulerContext::ResultRange, d->resultRange && contains(*d->resultRange));
    ranges.setFlag(RulerContext::SelectedRange, contains(d->range->range()));
    return ranges;
}

QList<RulerMarker> Ruler::markersAt(const QPoint& position, qsizetype most) const
{
    const auto symbol = d->markers->symbolAt(position);
    return symbol ? d->markers->markersOf(*symbol, most) : QList<RulerMarker>();
}

RulerContext Ruler::contextAt(const QPoint& position) const
{
    constexpr qsizetype mostMarkers = 100;
    RulerContext context = contextOfColumn(position.x());
    context.globalPosition = mapToGlobal(position);
    if (const auto symbol = d->markers->symbolAt(position)) {
        context.markers = d->markers->markersOf(*symbol, mostMarkers);
        context.markerCount = symbol->count();
    }
    return context;
}

RulerContext Ruler::contextOfColumn(double x) const
{
    RulerContext context;
    if (!d->scale.hasView() || !d->scale.isInSight(x) ||
        !d->scale.isWithinLimits(d->scale.msecsAt(x)))
        return context;
    context.time = d->scale.msecsAt(x);
    context.ranges = rangesAt(*context.time);
    return context;
}

int Ruler::Private::columnForKeys(int width) const
{
    if (const auto handle = range->focusedColumn())
        return *handle;
    return indicator->isVisible() ? indicator->x() + indicator->hotSpot() : width / 2;
}

void Ruler::contextMenuEvent(QContextMenuEvent* event)
{
    if (!isSignalConnected(QMetaMethod::fromSignal(&Ruler::contextRequested)) || !d->takesInput())
        return QWidget::contextMenuEvent(event);
    event->accept();
    const QPoint position = event->reason() == QContextMenuEvent::Keyboard
                                ? QPoint(d->columnForKeys(width()), height() / 2)
                                : event->pos();
    whileAlive(
        this, [this] { d->gestures->end(); },
        [&] { Q_EMIT contextRequested(contextAt(position)); });
}

} // namespace CorvelGui
