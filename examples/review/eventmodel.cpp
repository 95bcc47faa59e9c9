#include "eventmodel.h"

#include "eventicons.h"

#include <algorithm>

using CorvelGui::TrackDescription;

namespace Review {

EventModel::EventModel(const TimeTexts& times, QObject* parent)
    : QAbstractTableModel(parent), m_times(times)
{}

void EventModel::setReview(const ReviewData& review)
{
    beginResetModel();
    m_events = review.events;
    m_trackNames.clear();
    for (const TrackDescription& track : review.tracks)
        m_trackNames.insert(track.identifier, track.name);
    m_rows.clear();
    endResetModel();
    setHiddenTracks({});
}

void EventModel::setTimes(const TimeTexts& times)
{
    m_times = times;
    if (!m_rows.empty())
        Q_EMIT dataChanged(index(0, Time), index(rowCount() - 1, Time), {Qt::DisplayRole});
}

void EventModel::setHiddenTracks(const QSet<QString>& identifiers)
{
    beginResetModel();
    m_rows.clear();
    for (qsizetype i = 0; i < m_events.size(); ++i) {
        if (identifiers.isEmpty() || !identifiers.contains(m_events[i].track))
            m_rows.push_back(i);
    }
    endResetModel();
}

QString EventModel::trackName(qsizetype index) const
{
    const QString& identifier = m_events[index].track;
    return m_trackNames.value(identifier, identifier);
}

QList<Event> EventModel::eventsAt(qint64 msecs) const
{
    QList<Event> events;
    auto row = std::partition_point(m_rows.begin(), m_rows.end(),
                                    [&](qsizetype i) { return m_events[i].time < msecs; });
    for (; row != m_rows.end() && m_events[*row].time == msecs; ++row)
        events.append(m_events[*row]);
    return events;
}

QModelIndex EventModel::rowOf(qsizetype index) const
{
    const auto row = std::lower_bound(m_rows.begin(), m_rows.end(), index);
    if (row == m_rows.end() || *row != index)
        return {};
    return this->index(int(row - m_rows.begin()), 0);
}

int EventModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int EventModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant EventModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Time:
        return tr("Time");
    case Kind:
        return tr("Kind");
    case Text:
        return tr("Event");
    case Track:
        return tr("Track");
    default:
        return {};
    }
}

QVariant EventModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == Qt::DisplayRole)
        return text(index);
    if (role == Qt::DecorationRole && index.column() == Kind)
        return EventIcons::inList(EventKinds::parse(eventOfRow(index.row()).kind));
    return {};
}

QString EventModel::text(const QModelIndex& index) const
{
    const Event& event = eventOfRow(index.row());
    switch (index.column()) {
    case Time:
        return m_times.dateTime(event.time);
    case Kind:
        return EventKinds::text(event.kind);
    case Text:
        return event.text;
    case Track:
        return trackName(m_rows[size_t(index.row())]);
    default:
        return {};
    }
}

} // namespace Review
