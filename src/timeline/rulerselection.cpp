// SPDX-License-Identifier: MIT
// The range that is selected on the ruler, as clients ask for it.

#include "ruler_p.h"

namespace CorvelGui {

Ruler::RangeSelection Ruler::rangeSelection() const
{
    return d->range->mode();
}

void Ruler::setRangeSelection(RangeSelection how)
{
    d->range->setMode(how);
}

TimeSpan Ruler::selectedRange() const
{
    return d->range->range();
}

void Ruler::setSelectedRange(const TimeSpan& range)
{
    d->range->setRange(range);
}

void Ruler::setSelectedRangeBegin(qint64 msecs)
{
    d->range->setEnd(RangeHandle::End::Begin, msecs);
}

void Ruler::setSelectedRangeEnd(qint64 msecs)
{
    d->range->setEnd(RangeHandle::End::End, msecs);
}

bool Ruler::isEdgeScrolling() const
{
    return d->edgeScrolling;
}

void Ruler::setEdgeScrolling(bool on)
{
    if (d->edgeScrolling == on)
        return;
    d->edgeScrolling = on;
    Q_EMIT edgeScrollingChanged(on);
}

} // namespace CorvelGui
