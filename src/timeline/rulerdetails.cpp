// SPDX-License-Identifier: MIT
// What the ruler shows of its markers on request: durations, severities, and what a merged symbol
// stands for.

#include "markerlist.h"
#include "ruler_p.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace CorvelGui {

bool Ruler::showsMarkerDetails() const
{
    return d->markerDetails;
}

void Ruler::setMarkerDetails(bool on)
{
    if (d->markerDetails == on)
        return;
    d->markerDetails = on;
    d->markers->setDetailed(on);
    whileAlive(
        this, [this] { updateChildren(true); }, [this] { update(); },
        [&] { Q_EMIT markerDetailsChanged(on); });
}

Ruler::MergedClick Ruler::mergedClick() const
{
    return d->mergedClick;
}

void Ruler::setMergedClick(MergedClick action)
{
    if (d->mergedClick == action)
        return;
    d->mergedClick = action;
    d->markers->setOpensMerged(action != MergedClick::Jump);
    Q_EMIT mergedClickChanged(action);
}

// Return opens the symbol at the indicator.
bool Ruler::openByKey(const QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (!isReturn || d->mergedClick == MergedClick::Jump || !d->takesInput() ||
        !d->indicator->isVisible())
        return false;
    const auto symbol = d->markers->mergedNear(d->indicator->x() + d->indicator->hotSpot());
    if (symbol)
        openMerged(*symbol);
    return symbol.has_value();
}

void Ruler::openMerged(const MarkerSymbol& symbol)
{
    const TimeSpan span = d->markers->spanOf(symbol);
    const qsizetype total = symbol.count();
    const QList<RulerMarker> markers = d->markers->markersOf(symbol, MarkerList::most);
    const bool zooms = d->mergedClick == MergedClick::Zoom;
    const auto tell = [&] {
        Q_EMIT mergedMarkersActivated(d->scale.inZone(span.begin), d->scale.inZone(span.end),
                                      total);
    };
    if (!whileAlive(this, tell))
        return;
    // What no view can take apart is listed.
    const TimeSpan before = view();
    const qint64 room = (span.end - span.begin) / 10 + 1;
    const auto zoomIn = [&] {
        if (zooms && span.begin < span.end)
            setView(span.begin - room, span.end + room);
    };
    if (!whileAlive(this, zoomIn) || view().end - view().begin < before.end - before.begin)
        return;
    auto* list = new MarkerList(
        markers, total,
        [this](qint64 msecs) {
            return d->scale.inZone(msecs).toString(d->dateFormat + u" hh:mm:ss"_s) +
                   d->whichOfTwo(msecs);
        },
        this);
    connect(list, &MarkerList::chosen, this, &Ruler::jumpToTime);
    list->popUp(mapToGlobal(symbol.top));
}

} // namespace CorvelGui
