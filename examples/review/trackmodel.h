#pragma once

#include "timetexts.h"
#include "trackhistory.h"

#include <CorvelGui/TrackDescription>

#include <QAbstractTableModel>
#include <QList>
#include <QSet>

namespace Review {

/// The tracks as a table: one row each, with a check box that says whether the timeline shows it.
class TrackModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, DescribedFrom, DescribedTo, Recordings, RecordedTime, ColumnCount };

    explicit TrackModel(const TimeTexts& times, QObject* parent = nullptr);

    /// Replaces all tracks.
    void setTracks(const QList<CorvelGui::TrackDescription>& tracks);

    /// In the order of the rows. All tracks are checked at first.
    QList<CorvelGui::TrackDescription> checkedTracks() const;
    /// Identifiers of the others.
    QSet<QString> uncheckedTracks() const;

    struct NamedState
    {
        QString name;
        TrackState state;

        bool operator==(const NamedState&) const = default;
    };
    /// What is known of the checked tracks at a time, in the order of the rows.
    QList<NamedState> statesAt(qint64 msecs) const;

    void setTimes(const TimeTexts& times);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

Q_SIGNALS:
    /// Emitted when a check box was changed.
    void checkedTracksChanged();

private:
    QString text(const QModelIndex& index) const;

    struct Row
    {
        CorvelGui::TrackDescription track;
        TrackHistory history;
        bool checked = true;
    };

    TimeTexts m_times;
    QList<Row> m_rows;
};

} // namespace Review
