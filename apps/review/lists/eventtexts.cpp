// SPDX-License-Identifier: MIT
#include "eventtexts.h"

#include <CorvelGui/StringHelper>

#include <QBitArray>

#include <algorithm>
#include <numeric>

using CorvelGui::RulerMarker;
using CorvelGui::StringHelper;
using namespace Qt::StringLiterals;

namespace Review {

namespace {

/// The place of each text among all. Those that are alike have the same.
QList<int> ranks(const QStringList& texts, const QCollator& order)
{
    QList<int> sorted(texts.size());
    std::iota(sorted.begin(), sorted.end(), 0);
    std::ranges::sort(sorted, [&](int a, int b) { return order.compare(texts[a], texts[b]) < 0; });
    QList<int> ranks(texts.size());
    int rank = 0;
    for (qsizetype place = 1; place < sorted.size(); ++place) {
        rank += order.compare(texts[sorted[place - 1]], texts[sorted[place]]) != 0;
        ranks[sorted[place]] = rank;
    }
    return ranks;
}

QBitArray found(const QStringList& texts, const QString& text)
{
    QBitArray found(texts.size());
    for (qsizetype number = 0; number < texts.size(); ++number)
        found.setBit(number, texts[number].contains(text, Qt::CaseInsensitive));
    return found;
}

/// Nothing for a moment.
QString durationText(qint64 msecs)
{
    return msecs > 0 ? TimeTexts::exactDuration(msecs) : QString();
}

QStringList severityTexts()
{
    QStringList texts;
    for (std::size_t severity = 0; severity < RulerMarker::severityCount; ++severity)
        texts.append(Severities::text(Severity(severity)));
    return texts;
}

/// Writing a time takes longer than all else that is searched.
bool mayBeInATime(const QString& text)
{
    return std::ranges::all_of(text, [](QChar c) { return u"0123456789.:/- "_s.contains(c); });
}

} // namespace

EventTexts::EventTexts(const EventList& events, const TimeTexts& times)
    : m_events(events.events())
    , m_times(times)
    , m_order(StringHelper::naturalOrder())
    , m_tracks(events.trackNames())
{
    for (const QString& kind : m_events.kinds()) {
        m_kinds.append(EventKinds::text(kind));
        m_kindSeverities.append(Severities::ofKind(EventKinds::parse(kind)));
    }
    m_kindRanks = ranks(m_kinds, m_order);
    m_trackRanks = ranks(m_tracks, m_order);
}

Severity EventTexts::severityOf(qsizetype event) const
{
    return m_events.severityAt(event).value_or(m_kindSeverities[m_events.kindAt(event)]);
}

QString EventTexts::text(qsizetype event, Column column) const
{
    switch (column) {
    case Time:
        return m_times.dateTime(m_events.timeAt(event));
    case Kind:
        return m_kinds[m_events.kindAt(event)];
    case Text:
        return m_events.textAt(event);
    case Track:
        return m_tracks[m_events.trackAt(event)];
    case Duration:
        return durationText(m_events.durationAt(event));
    case Severity:
        return Severities::text(severityOf(event));
    case ColumnCount:
        break;
    }
    return {};
}

int EventTexts::compare(qsizetype event, qsizetype other, Column column) const
{
    switch (column) {
    case Time: // their numbers are in this order
        return event < other ? -1 : 1;
    case Kind:
        return m_kindRanks[m_events.kindAt(event)] - m_kindRanks[m_events.kindAt(other)];
    case Text:
        // Events that say the same share it.
        if (m_events.utf8At(event).data() == m_events.utf8At(other).data())
            return 0;
        return m_order.compare(m_events.textAt(event), m_events.textAt(other));
    case Track:
        return m_trackRanks[m_events.trackAt(event)] - m_trackRanks[m_events.trackAt(other)];
    case Duration: {
        const qint64 longer = m_events.durationAt(event) - m_events.durationAt(other);
        return longer == 0 ? 0 : longer < 0 ? -1 : 1;
    }
    case Severity:
        return int(severityOf(event)) - int(severityOf(other));
    case ColumnCount:
        break;
    }
    return 0;
}

std::function<bool(qsizetype)> EventTexts::finder(const QString& text) const
{
    return [all = *this, kinds = found(m_kinds, text), tracks = found(m_tracks, text),
            severities = found(severityTexts(), text), inTime = mayBeInATime(text),
            text](qsizetype event) {
        return kinds.testBit(all.m_events.kindAt(event)) ||
               tracks.testBit(all.m_events.trackAt(event)) ||
               severities.testBit(int(all.severityOf(event))) ||
               all.m_events.textAt(event).contains(text, Qt::CaseInsensitive) ||
               (inTime &&
                (all.text(event, Time).contains(text) || all.text(event, Duration).contains(text)));
    };
}

} // namespace Review
