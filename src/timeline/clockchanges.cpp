// SPDX-License-Identifier: MIT
#include "clockchanges.h"

#include <Corvel/TimeZoneHelper>

#include <QDateTime>

#include <algorithm>
#include <cstdlib>
#include <iterator>

using namespace Qt::StringLiterals;

namespace CorvelGui {

namespace {

constexpr qint64 day = 86'400'000; // milliseconds
constexpr qint64 stride = 7 * day;
/// No clock is put back further.
constexpr qint64 reach = 2 * day;

} // namespace

void ClockChanges::setZone(const QTimeZone& zone)
{
    m_zone = zone;
    m_knownFrom = m_knownTo = 0;
    m_known.clear();
}

qint64 ClockChanges::offsetAt(qint64 instant) const
{
    return 1000LL * Corvel::TimeZoneHelper::fromMSecsSinceEpoch(instant, m_zone).offsetFromUtc();
}

std::vector<ClockChange> ClockChanges::between(qint64 from, qint64 to) const
{
    if (from >= to)
        return {};
    if (from < m_knownFrom || m_knownTo < to)
        find(from, to);
    const auto before = [](const ClockChange& change, qint64 instant) {
        return change.instant < instant;
    };
    const auto first = std::lower_bound(m_known.begin(), m_known.end(), from, before);
    return {first, std::lower_bound(first, m_known.end(), to, before)};
}

std::vector<ClockChange> ClockChanges::reaching(qint64 from, qint64 to) const
{
    if (from >= to)
        return {};
    std::vector<ClockChange> changes = between(from - reach, to + reach);
    std::erase_if(changes, [&](const ClockChange& change) {
        const qint64 repeated = change.repeats() ? change.length() : 0;
        return change.instant + std::max<qint64>(repeated, 1) <= from ||
               to <= change.instant - repeated;
    });
    return changes;
}

QString ClockChanges::whichOfTwo(qint64 instant) const
{
    for (const ClockChange& change : reaching(instant, instant + 1)) {
        if (!change.repeats())
            continue;
        const qint64 offset = instant < change.instant ? change.before : change.after;
        const qint64 minutes = std::abs(offset) / 60'000;
        QString text = u" %1%2"_s.arg(QLatin1Char(offset < 0 ? '-' : '+'))
                           .arg(minutes / 60, 2, 10, QLatin1Char('0'));
        if (minutes % 60 != 0)
            text += u":%1"_s.arg(minutes % 60, 2, 10, QLatin1Char('0'));
        return text;
    }
    return {};
}

void ClockChanges::find(qint64 from, qint64 to) const
{
    // A drag soon asks for what lies beside.
    const qint64 beside = std::max(to - from, stride);
    m_knownFrom = from - beside;
    m_knownTo = to + beside;
    m_known.clear();

    qint64 begin = m_knownFrom;
    qint64 offset = offsetAt(begin);
    while (begin < m_knownTo) {
        const qint64 end = begin + stride;
        const qint64 next = offsetAt(end);
        if (next != offset) {
            qint64 last = begin; // the last instant known to have the old offset
            qint64 first = end;  // the first one known not to
            while (first - last > 1) {
                const qint64 middle = last + (first - last) / 2;
                (offsetAt(middle) == offset ? last : first) = middle;
            }
            m_known.push_back({first, offset, next});
        }
        begin = end;
        offset = next;
    }
}

} // namespace CorvelGui
