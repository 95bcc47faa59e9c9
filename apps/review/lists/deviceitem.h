// SPDX-License-Identifier: MIT
#pragma once

#include "data/reviewdata.h"
#include "data/trackhistory.h"
#include "look/timetexts.h"

#include <CorvelGui/PTreeWidgetItem>

#include <QCoreApplication>

#include <optional>

namespace Review {

/// The time that a device tree speaks of, and how it writes times.
struct DeviceMoment
{
    TimeTexts times;
    /// 0 if there is none.
    qint64 msecs = 0;
};

/// A camera in the device tree: one with a track and a check box, or one that so far is only an
/// address.
class DeviceItem : public CorvelGui::PTreeWidgetItem
{
    Q_DECLARE_TR_FUNCTIONS(Review::DeviceItem)

public:
    enum Column { Name, State, Recordings, RecordedTime, KnownFrom, KnownTo, Address, ColumnCount };

    /// Becomes the last child of @p group, checked. The moment must outlive the item.
    DeviceItem(QTreeWidgetItem* group, const CorvelGui::TrackDescription& track,
               const DeviceMoment& moment);
    DeviceItem(QTreeWidgetItem* group, quint32 address, const DeviceMoment& moment);

    /// What is recorded; an empty one, called like the address, if there is only that.
    const CorvelGui::TrackDescription& track() const { return m_track; }
    std::optional<quint32> address() const { return m_address; }
    const TrackHistory& history() const { return m_history; }
    /// What is known of the same track now.
    void setTrack(const CorvelGui::TrackDescription& track);
    TrackState stateAt(qint64 msecs) const { return m_history.stateAt(msecs); }

    /// Writes all columns again.
    void showTexts();
    /// Writes what the moment changes.
    void showState();

    bool operator<(const QTreeWidgetItem& other) const override;

protected:
    QVariant ToolTipRequested() const override;

private:
    qint64 sortValue(int column) const;

    CorvelGui::TrackDescription m_track;
    TrackHistory m_history;
    const std::optional<quint32> m_address;
    /// Where it stands while nothing is sorted.
    const qint64 m_place;
    const bool m_hasTrack;
    const DeviceMoment& m_moment;
};

} // namespace Review
