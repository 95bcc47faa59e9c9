// SPDX-License-Identifier: MIT
#include "deviceitem.h"

#include "deviceaddress.h"
#include "look/statesign.h"

#include <CorvelGui/ToolTipHelper>

#include <QLocale>
#include <QTreeWidget>

using CorvelGui::PTreeWidgetItem;
using CorvelGui::TrackDescription;

namespace Review {

namespace {

std::optional<quint32> addressOf(const TrackDescription& track)
{
    const auto address = DeviceAddress::parse(track.identifier);
    return address ? address : DeviceAddress::parse(track.name);
}

TrackDescription nothingOf(quint32 address)
{
    const QString text = DeviceAddress::text(address);
    return {.identifier = text, .name = text, .begin = 0, .end = 0, .recorded = {}};
}

} // namespace

DeviceItem::DeviceItem(QTreeWidgetItem* group, const TrackDescription& track,
                       const DeviceMoment& moment)
    : PTreeWidgetItem(group)
    , m_track(track)
    , m_history(track)
    , m_address(addressOf(track))
    , m_place(group->childCount())
    , m_hasTrack(true)
    , m_moment(moment)
{
    setCheckable();
    setChecked(Name, true);
    showTexts();
}

DeviceItem::DeviceItem(QTreeWidgetItem* group, quint32 address, const DeviceMoment& moment)
    : PTreeWidgetItem(group)
    , m_track(nothingOf(address))
    , m_history(m_track)
    , m_address(address)
    , m_place(address)
    , m_hasTrack(false)
    , m_moment(moment)
{
    showTexts();
}

void DeviceItem::setTrack(const TrackDescription& track)
{
    m_track = track;
    m_history = TrackHistory(track);
    showTexts();
}

void DeviceItem::showTexts()
{
    setText(Name, m_track.name);
    setText(Address, m_address ? DeviceAddress::text(*m_address) : QString());
    for (const int column : {Recordings, RecordedTime})
        setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    setText(Recordings, QLocale().toString(m_track.recorded.size()));
    setText(RecordedTime, TimeTexts::duration(m_history.recordedTime()));
    if (m_hasTrack) {
        setText(KnownFrom, m_moment.times.dateTime(m_track.begin));
        setText(KnownTo, m_moment.times.dateTime(m_track.end));
    }
    showState();
}

void DeviceItem::showState()
{
    const TrackState state = m_history.stateAt(m_moment.msecs);
    const QString text = StateSign::text(state);
    if (text == this->text(State))
        return;
    setText(State, text);
    setIcon(State, StateSign::icon(state));
}

qint64 DeviceItem::sortValue(int column) const
{
    switch (column) {
    case State:
        return qint64(m_history.stateAt(m_moment.msecs));
    case Recordings:
        return m_track.recorded.size();
    case RecordedTime:
        return m_history.recordedTime();
    case KnownFrom:
        return m_track.begin;
    case KnownTo:
        return m_track.end;
    case Address:
        return m_address ? qint64(*m_address) : -1;
    default:
        return m_place;
    }
}

bool DeviceItem::operator<(const QTreeWidgetItem& other) const
{
    const auto& device = static_cast<const DeviceItem&>(other);
    const int column = treeWidget()->sortColumn();
    if (column == Name && (m_hasTrack || device.m_hasTrack))
        return m_track.name.localeAwareCompare(device.m_track.name) < 0;
    return sortValue(column) < device.sortValue(column);
}

QVariant DeviceItem::ToolTipRequested() const
{
    CorvelGui::ToolTipHelper toolTip;
    toolTip.AddRow(tr("Camera"), m_track.name);
    toolTip.AddRow(tr("Address"), text(Address));
    toolTip.AddRow(tr("State"), text(State));
    toolTip.AddRow(tr("Recordings"), text(Recordings));
    toolTip.AddRow(tr("Recorded time"), text(RecordedTime));
    return toolTip.GetToolTip();
}

} // namespace Review
