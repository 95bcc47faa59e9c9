// SPDX-License-Identifier: MIT
#pragma once

#include "deviceitem.h"
#include "look/translated.h"

#include <CorvelGui/PTreeWidget>

#include <QSet>

namespace Review {

class Clock;
class Selection;

/// The cameras in groups: those with tracks, each with a check box that says whether the timeline
/// shows it, and those that were added by their addresses.
///
/// The selected camera is bold. A click on a checked camera selects it. A double click or Return
/// also checks it, and goes on to its next recording.
class DeviceTree : public Translated<CorvelGui::PTreeWidget>
{
    Q_OBJECT

public:
    /// Owns neither; both must live longer.
    DeviceTree(const Clock& clock, Selection& selection, QWidget* parent = nullptr);

    /// Forgets all cameras, also those that were added by address.
    void removeAll();
    /// Replaces all cameras with tracks. Those that were unchecked are so again, and what was added
    /// by address stays, unless one of the tracks has the address.
    void setReview(const ReviewData& review);
    /// Adds a camera for each address that has none. Returns how many were added.
    int addCameras(const QList<quint32>& addresses);
    /// Of the selected cameras only those that were added can be removed.
    bool canRemoveSelected() const;
    void removeSelected();

    /// In the order of the rows.
    QList<CorvelGui::TrackDescription> checkedTracks() const;
    /// Identifiers of the others.
    QSet<QString> uncheckedTracks() const;
    /// What is known of the checked tracks at a time, in the order of the rows.
    QList<NamedState> statesAt(qint64 msecs) const;

    /// Shows the cameras that say @p filter in some column, and the groups that have any.
    void showRows(const QString& filter);

Q_SIGNALS:
    /// Emitted once after the user has changed a check box, whether of a camera or of a group.
    void checkedTracksChanged();
    /// Tells the user in a sentence what has happened.
    void told(const QString& sentence);

protected:
    void retranslate() final;

private:
    void followClock();
    void followMoment();
    void followCamera();
    QList<DeviceItem*> devices() const;
    QList<DeviceItem*> devicesOf(const QTreeWidgetItem* group) const;
    QList<DeviceItem*> removable() const;
    DeviceItem* deviceOf(QTreeWidgetItem* item) const;
    void choose(const DeviceItem& device);
    void open(DeviceItem& device);
    void followCheck(const QTreeWidgetItem* item, int column);
    void showChecksOfGroup();
    void sortGroups();
    void showTexts();
    /// Where the cameras are the same: rows, columns and what is selected stay. Returns whether
    /// they are.
    bool renewTracks(const ReviewData& review);
    void fitColumns();
    void remove(const QList<DeviceItem*>& added);

    const Clock& m_clock;
    Selection& m_selection;
    DeviceMoment m_moment;
    CorvelGui::PTreeWidgetItem* m_cameras;
    CorvelGui::PTreeWidgetItem* m_added;
    QString m_filter;
};

} // namespace Review
