#pragma once

#include "reviewdata.h"
#include "timetexts.h"

#include <QAbstractTableModel>
#include <QSet>

#include <vector>

namespace Review {

/// The events as a table, one row each, sorted by time. Texts are made for the rows that are looked
/// at, so that it does not matter how many events there are.
class EventModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Time, Kind, Text, Track, ColumnCount };

    explicit EventModel(const TimeTexts& times, QObject* parent = nullptr);

    /// Replaces all events.
    void setReview(const ReviewData& review);

    void setTimes(const TimeTexts& times);
    /// Leaves out the events of these tracks.
    void setHiddenTracks(const QSet<QString>& identifiers);

    /// Numbers of the events that have a row, in their order.
    const std::vector<qsizetype>& shownEvents() const { return m_rows; }
    const Event& event(qsizetype index) const { return m_events[index]; }
    /// The name of the track that an event belongs to; empty if it belongs to none.
    QString trackName(qsizetype index) const;
    /// Events that have a row and happened at exactly @p msecs.
    QList<Event> eventsAt(qint64 msecs) const;
    /// The row of an event; invalid if it has none.
    QModelIndex rowOf(qsizetype index) const;
    /// The event of a row.
    const Event& eventOfRow(int row) const { return m_events[m_rows[size_t(row)]]; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QString text(const QModelIndex& index) const;

    QList<Event> m_events;
    QHash<QString, QString> m_trackNames;
    TimeTexts m_times;
    std::vector<qsizetype> m_rows;
};

} // namespace Review
