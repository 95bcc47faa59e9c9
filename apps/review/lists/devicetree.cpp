// SPDX-License-Identifier: MIT
#include "devicetree.h"

#include "look/listlook.h"
#include "look/statesign.h"
#include "session/clock.h"
#include "session/selection.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>

using CorvelGui::PTreeWidgetItem;
using CorvelGui::TrackDescription;

namespace Review {

DeviceTree::DeviceTree(const Clock& clock, Selection& selection, QWidget* parent)
    : Translated(parent)
    , m_clock(clock)
    , m_selection(selection)
    , m_moment{.times = clock.times()}
    , m_cameras(new PTreeWidgetItem)
    , m_added(new PTreeWidgetItem)
{
    setColumnCount(DeviceItem::ColumnCount);
    ListLook::apply(this, header());
    setIndentation(18);
    for (PTreeWidgetItem* group : {m_cameras, m_added}) {
        addTopLevelItem(group);
        group->setBold(DeviceItem::Name, true);
        group->setExpanded(true);
    }
    m_cameras->setCheckable();
    m_cameras->setChecked(DeviceItem::Name, true);
    // A third click on a column brings the order of the data back.
    header()->setSortIndicatorClearable(true);
    header()->setSortIndicator(-1, Qt::AscendingOrder);
    connect(header(), &QHeaderView::sortIndicatorChanged, this, &DeviceTree::sortGroups);
    connect(this, &QTreeWidget::itemChanged, this, &DeviceTree::followCheck);
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        if (const DeviceItem* device = deviceOf(item))
            choose(*device);
    });
    connect(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        if (DeviceItem* device = deviceOf(item))
            open(*device);
    });
    InitCopyMenus(true);
    ListLook::offerActions(this);
    connect(&clock, &Clock::changed, this, &DeviceTree::followClock);
    connect(&selection, &Selection::momentChanged, this, &DeviceTree::followMoment);
    connect(&selection, &Selection::cameraChanged, this, &DeviceTree::followCamera);
    retranslate();
}

QList<DeviceItem*> DeviceTree::devicesOf(const QTreeWidgetItem* group) const
{
    QList<DeviceItem*> items;
    for (int i = 0; i < group->childCount(); ++i)
        items.append(static_cast<DeviceItem*>(group->child(i)));
    return items;
}

QList<DeviceItem*> DeviceTree::devices() const
{
    return devicesOf(m_cameras) + devicesOf(m_added);
}

void DeviceTree::removeAll()
{
    const QSignalBlocker blocker(this);
    m_cameras->DeleteAllChildren();
    remove(devicesOf(m_added));
    showRows(m_filter);
    scrollToTop();
}

void DeviceTree::setReview(const ReviewData& review)
{
    const QSet<QString> unchecked = uncheckedTracks();
    const QSignalBlocker blocker(this);
    if (renewTracks(review))
        return;
    m_cameras->DeleteAllChildren();
    QSet<quint32> taken;
    for (const TrackDescription& track : review.tracks) {
        auto* device = new DeviceItem(m_cameras, track, m_moment);
        device->setChecked(DeviceItem::Name, !unchecked.contains(track.identifier));
        if (device->address())
            taken.insert(*device->address());
    }
    QList<DeviceItem*> known = devicesOf(m_added);
    known.removeIf([&](const DeviceItem* device) { return !taken.contains(*device->address()); });
    remove(known);
    showChecksOfGroup();
    followCamera();
    sortGroups();
    showRows(m_filter);
    fitColumns();
}

bool DeviceTree::renewTracks(const ReviewData& review)
{
    const QList<DeviceItem*> cameras = devicesOf(m_cameras);
    QHash<QString, const TrackDescription*> tracks;
    for (const TrackDescription& track : review.tracks)
        tracks.insert(track.identifier, &track);
    const auto isTold = [&tracks](const DeviceItem* device) {
        const TrackDescription* track = tracks.value(device->track().identifier);
        return track && track->name == device->track().name;
    };
    if (cameras.isEmpty() || cameras.size() != tracks.size() ||
        !std::ranges::all_of(cameras, isTold))
        return false;
    for (DeviceItem* device : cameras)
        device->setTrack(*tracks[device->track().identifier]);
    sortGroups();
    showRows(m_filter);
    return true;
}

void DeviceTree::fitColumns()
{
    constexpr int roomForBold = 12;
    for (int column = 0; column < columnCount(); ++column)
        resizeColumnToContentsWithOffset(column, column == DeviceItem::Name ? roomForBold : 0);
    // The state changes while the time goes on; the column does not.
    int widest = 0;
    for (const TrackState state :
         {TrackState::Recorded, TrackState::Gap, TrackState::Loading, TrackState::NothingKnown})
        widest = std::max(widest, fontMetrics().horizontalAdvance(StateSign::text(state)));
    constexpr int signAndMargins = 44;
    setColumnWidth(DeviceItem::State,
                   std::max(columnWidth(DeviceItem::State), widest + signAndMargins));
}

int DeviceTree::addCameras(const QList<quint32>& addresses)
{
    QSet<quint32> taken;
    for (const DeviceItem* device : devices()) {
        if (device->address())
            taken.insert(*device->address());
    }
    const QSignalBlocker blocker(this);
    int added = 0;
    for (const quint32 address : addresses) {
        if (taken.contains(address))
            continue;
        taken.insert(address);
        new DeviceItem(m_added, address, m_moment);
        ++added;
    }
    sortGroups();
    showRows(m_filter);
    return added;
}

QList<DeviceItem*> DeviceTree::removable() const
{
    QList<DeviceItem*> items = devicesOf(m_added);
    items.removeIf([](const DeviceItem* device) { return !device->isSelected(); });
    return items;
}

bool DeviceTree::canRemoveSelected() const
{
    return !removable().isEmpty();
}

void DeviceTree::removeSelected()
{
    remove(removable());
    showRows(m_filter);
}

void DeviceTree::remove(const QList<DeviceItem*>& added)
{
    // Taken out before they go: who hears that the selection changed looks at what is left.
    for (DeviceItem* device : added)
        m_added->removeChild(device);
    qDeleteAll(added);
}

QList<TrackDescription> DeviceTree::checkedTracks() const
{
    QList<TrackDescription> tracks;
    for (const DeviceItem* device : devicesOf(m_cameras)) {
        if (device->isChecked(DeviceItem::Name))
            tracks.append(device->track());
    }
    return tracks;
}

QSet<QString> DeviceTree::uncheckedTracks() const
{
    QSet<QString> identifiers;
    for (const DeviceItem* device : devicesOf(m_cameras)) {
        if (!device->isChecked(DeviceItem::Name))
            identifiers.insert(device->track().identifier);
    }
    return identifiers;
}

QList<NamedState> DeviceTree::statesAt(qint64 msecs) const
{
    QList<NamedState> states;
    for (const DeviceItem* device : devicesOf(m_cameras)) {
        if (device->isChecked(DeviceItem::Name))
            states.append({device->track().name, device->stateAt(msecs)});
    }
    return states;
}

DeviceItem* DeviceTree::deviceOf(QTreeWidgetItem* item) const
{
    return item == m_cameras || item == m_added ? nullptr : static_cast<DeviceItem*>(item);
}

void DeviceTree::choose(const DeviceItem& device)
{
    if (device.isChecked(DeviceItem::Name))
        m_selection.setCamera(device.track().identifier);
}

void DeviceTree::open(DeviceItem& device)
{
    const auto next = device.history().nextRecording(m_selection.moment());
    if (device.parent() == m_cameras) {
        device.setChecked(DeviceItem::Name, true);
        choose(device);
    }
    if (next)
        m_selection.goTo(next->begin);
    else
        Q_EMIT told(tr("There are no more recordings of this camera."));
}

void DeviceTree::followCheck(const QTreeWidgetItem* item, int column)
{
    if (column != DeviceItem::Name)
        return;
    {
        const QSignalBlocker blocker(this);
        if (item == m_cameras) {
            for (DeviceItem* device : devicesOf(m_cameras)) {
                if (!device->isHidden())
                    device->setChecked(DeviceItem::Name, m_cameras->isChecked(DeviceItem::Name));
            }
        }
        showChecksOfGroup();
    }
    Q_EMIT checkedTracksChanged();
}

void DeviceTree::showChecksOfGroup()
{
    const QList<DeviceItem*> cameras = devicesOf(m_cameras);
    const auto checked = std::ranges::count_if(
        cameras, [](const DeviceItem* device) { return device->isChecked(DeviceItem::Name); });
    m_cameras->setCheckState(DeviceItem::Name, checked == cameras.size() ? Qt::Checked
                                               : checked == 0            ? Qt::Unchecked
                                                                         : Qt::PartiallyChecked);
}

void DeviceTree::followClock()
{
    m_moment.times = m_clock.times();
    showTexts();
}

void DeviceTree::followMoment()
{
    m_moment.msecs = m_selection.moment();
    const QSignalBlocker blocker(this);
    for (DeviceItem* device : devices())
        device->showState();
}

void DeviceTree::followCamera()
{
    const QSignalBlocker blocker(this);
    for (DeviceItem* device : devicesOf(m_cameras))
        device->setBold(DeviceItem::Name, device->track().identifier == m_selection.camera());
}

void DeviceTree::showTexts()
{
    const QSignalBlocker blocker(this);
    for (DeviceItem* device : devices())
        device->showTexts();
    showRows(m_filter);
}

void DeviceTree::showRows(const QString& filter)
{
    m_filter = filter;
    FilterItems([text = filter.toLower()](const QTreeWidgetItem& item) {
        return item.parent() && static_cast<const DeviceItem&>(item).isTextFound(text);
    });
}

void DeviceTree::sortGroups()
{
    for (PTreeWidgetItem* group : {m_cameras, m_added})
        group->sortChildren(header()->sortIndicatorSection(), header()->sortIndicatorOrder());
}

void DeviceTree::retranslate()
{
    const QSignalBlocker blocker(this);
    setHeaderLabels({tr("Camera"), tr("State"), tr("Recordings"), tr("Recorded time"),
                     tr("Known from"), tr("Known to"), tr("Address")});
    for (const int column : {DeviceItem::Recordings, DeviceItem::RecordedTime})
        headerItem()->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    m_cameras->setText(DeviceItem::Name, tr("Cameras"));
    m_added->setText(DeviceItem::Name, tr("Added cameras"));
    showTexts();
    fitColumns();
}

} // namespace Review
