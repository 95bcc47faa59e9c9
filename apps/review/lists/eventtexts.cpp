#include "eventtexts.h"

#include "data/eventkind.h"

#include <QBitArray>

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace Review {

namespace {

QCollator userOrder()
{
    QCollator order;
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    return order;
}

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

/// Writing a time takes longer than all else that is searched.
bool mayBeInATime(const QString& text)
{
    return std::ranges::all_of(text, [](QChar c) { return u"0123456789.:/- "_s.contains(c); });
}

} // namespace

EventTexts::EventTexts(const EventList& events, const TimeTexts& times)
    : m_events(events.events()), m_times(times), m_order(userOrder()), m_tracks(events.trackNames())
{
    for (const QString& kind : m_events.kinds())
        m_kinds.append(EventKinds::text(kind));
    m_kindRanks = ranks(m_kinds, m_order);
    m_trackRanks = ranks(m_tracks, m_order);
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
    case ColumnCount:
        break;
    }
    return 0;
}

std::function<bool(qsizetype)> EventTexts::finder(const QString& text) const
{
    return [events = m_events, times = m_times, kinds = found(m_kinds, text),
            tracks = found(m_tracks, text), inTime = mayBeInATime(text), text](qsizetype event) {
        return kinds.testBit(events.kindAt(event)) || tracks.testBit(events.trackAt(event)) ||
               events.textAt(event).contains(text, Qt::CaseInsensitive) ||
               (inTime && times.dateTime(events.timeAt(event)).contains(text));
    };
}

} // namespace Review
