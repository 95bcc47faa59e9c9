#include "trackmodel.h"

#include <QLocale>

using CorvelGui::TrackDescription;

namespace Review {

TrackModel::TrackModel(const TimeTexts& times, QObject* parent)
    : QAbstractTableModel(parent), m_times(times)
{}

void TrackModel::setTracks(const QList<TrackDescription>& tracks)
{
    beginResetModel();
    m_rows.clear();
    m_rows.reserve(tracks.size());
    for (const TrackDescription& track : tracks)
        m_rows.append({.track = track, .history = TrackHistory(track), .checked = true});
    endResetModel();
}

QList<TrackDescription> TrackModel::checkedTracks() const
{
    QList<TrackDescription> tracks;
    for (const Row& row : m_rows) {
        if (row.checked)
            tracks.append(row.track);
    }
    return tracks;
}

QSet<QString> TrackModel::uncheckedTracks() const
{
    QSet<QString> identifiers;
    for (const Row& row : m_rows) {
        if (!row.checked)
            identifiers.insert(row.track.identifier);
    }
    return identifiers;
}

QList<TrackModel::NamedState> TrackModel::statesAt(qint64 msecs) const
{
    QList<NamedState> states;
    for (const Row& row : m_rows) {
        if (row.checked)
            states.append({row.track.name, row.history.stateAt(msecs)});
    }
    return states;
}

void TrackModel::setTimes(const TimeTexts& times)
{
    m_times = times;
    if (!m_rows.isEmpty())
        Q_EMIT dataChanged(index(0, DescribedFrom), index(rowCount() - 1, DescribedTo),
                           {Qt::DisplayRole});
}

int TrackModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int TrackModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TrackModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignVCenter | (section < Recordings ? Qt::AlignLeft : Qt::AlignRight));
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Name:
        return tr("Track");
    case DescribedFrom:
        return tr("Described from");
    case DescribedTo:
        return tr("Described to");
    case Recordings:
        return tr("Recordings");
    case RecordedTime:
        return tr("Recorded time");
    default:
        return {};
    }
}

QVariant TrackModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(index);
    case Qt::TextAlignmentRole:
        return int(Qt::AlignVCenter |
                   (index.column() < Recordings ? Qt::AlignLeft : Qt::AlignRight));
    case Qt::CheckStateRole:
        if (index.column() == Name)
            return m_rows[index.row()].checked ? Qt::Checked : Qt::Unchecked;
        return {};
    default:
        return {};
    }
}

bool TrackModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || index.column() != Name ||
        !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    const bool checked = value.toInt() == Qt::Checked;
    if (m_rows[index.row()].checked == checked)
        return true;
    m_rows[index.row()].checked = checked;
    Q_EMIT dataChanged(index, index, {role});
    Q_EMIT checkedTracksChanged();
    return true;
}

Qt::ItemFlags TrackModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags base = QAbstractTableModel::flags(index);
    return index.column() == Name ? base | Qt::ItemIsUserCheckable : base;
}

QString TrackModel::text(const QModelIndex& index) const
{
    const Row& row = m_rows[index.row()];
    switch (index.column()) {
    case Name:
        return row.track.name;
    case DescribedFrom:
        return m_times.dateTime(row.track.begin);
    case DescribedTo:
        return m_times.dateTime(row.track.end);
    case Recordings:
        return QLocale().toString(row.track.recorded.size());
    case RecordedTime:
        return TimeTexts::duration(row.history.recordedTime());
    default:
        return {};
    }
}

} // namespace Review
