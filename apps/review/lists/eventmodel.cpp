// SPDX-License-Identifier: MIT
#include "eventmodel.h"

#include "look/eventicons.h"

namespace Review {

EventModel::EventModel(QObject* parent)
    : QAbstractTableModel(parent), m_texts({}, TimeTexts(QString()))
{}

void EventModel::setEvents(const EventList& events, const TimeTexts& times)
{
    beginResetModel();
    take(events, times);
    endResetModel();
}

bool EventModel::addEvents(const EventList& events, const TimeTexts& times)
{
    const qsizetype before = m_events.size();
    const qsizetype now = events.events().size();
    if (before == 0 || !events.events().continues(m_events))
        return false;
    if (now == before) {
        renewTexts(events, times);
        return true;
    }
    beginInsertRows({}, int(before), int(now) - 1);
    take(events, times);
    endInsertRows();
    return true;
}

void EventModel::take(const EventList& events, const TimeTexts& times)
{
    m_events = events.events();
    m_texts = EventTexts(events, times);
    m_kinds.clear();
    for (const QString& kind : m_events.kinds())
        m_kinds.append(EventKinds::parse(kind));
}

void EventModel::renewTexts(const EventList& events, const TimeTexts& times)
{
    m_texts = EventTexts(events, times);
    if (!m_events.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int EventModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_events.size());
}

int EventModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : EventTexts::ColumnCount;
}

QVariant EventModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const auto column = EventTexts::Column(index.column());
    if (role == Qt::DisplayRole)
        return m_texts.text(index.row(), column);
    if (role == Qt::DecorationRole && column == EventTexts::Kind)
        return EventIcons::inList(m_kinds[m_events.kindAt(index.row())]);
    return {};
}

QVariant EventModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (EventTexts::Column(section)) {
    case EventTexts::Time:
        return tr("Time");
    case EventTexts::Kind:
        return tr("Kind");
    case EventTexts::Text:
        return tr("Event");
    case EventTexts::Track:
        return tr("Camera");
    case EventTexts::Duration:
        return tr("Duration");
    case EventTexts::Severity:
        return tr("Severity");
    case EventTexts::ColumnCount:
        break;
    }
    return {};
}

} // namespace Review
