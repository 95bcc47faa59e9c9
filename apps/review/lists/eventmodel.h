// SPDX-License-Identifier: MIT
#pragma once

#include "data/eventkind.h"
#include "eventtexts.h"

#include <QAbstractTableModel>

namespace Review {

/// The events as a model: a row for each, in the order of time.
class EventModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit EventModel(QObject* parent = nullptr);

    void setEvents(const EventList& events, const TimeTexts& times);
    /// The same where the events are known to begin with those before; these stay. Otherwise it
    /// does nothing, and returns false.
    bool addEvents(const EventList& events, const TimeTexts& times);
    /// The same events say something else now: the clock or the language is another.
    void renewTexts(const EventList& events, const TimeTexts& times);
    const EventTexts& texts() const { return m_texts; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void take(const EventList& events, const TimeTexts& times);

    Events m_events;
    EventTexts m_texts;
    QList<EventKind> m_kinds; ///< by their numbers
};

} // namespace Review
