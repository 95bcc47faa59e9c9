#pragma once

#include "timetexts.h"

#include <CorvelGui/TrackDescription>

#include <QAbstractTableModel>
#include <QList>

namespace Review {

/// The tracks as a table: one row each, with a check box that says whether the timeline shows it.
class TrackModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, DescribedFrom, DescribedTo, Recordings, RecordedTime, ColumnCount };

    TrackModel(const QList<CorvelGui::TrackDescription>& tracks, const TimeTexts& times,
               QObject* parent = nullptr);

    /// In the order of the rows. All tracks are checked at first.
    QList<CorvelGui::TrackDescription> checkedTracks() const;

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
        qint64 recordedTime = 0;
        bool checked = true;
    };

    const TimeTexts m_times;
    QList<Row> m_rows;
};

} // namespace Review
