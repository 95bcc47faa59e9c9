// SPDX-License-Identifier: MIT
#pragma once

#include "data/reviewdata.h"
#include "data/trackhistory.h"
#include "look/translated.h"

#include <QSet>
#include <QWidget>

class QAction;

namespace CorvelGui {
class FilterLineEdit;
} // namespace CorvelGui

namespace Review {

class Clock;
class DeviceTree;
class Selection;

/// The cameras in a tree, below a field that filters it.
class DevicePane : public Translated<QWidget>
{
    Q_OBJECT

public:
    /// Owns neither; both must live longer.
    DevicePane(const Clock& clock, Selection& selection, QWidget* parent = nullptr);

    /// Forgets all cameras, also those that were added.
    void removeAll();
    /// Replaces all tracks. What the user unchecked or added stays.
    void setReview(const ReviewData& review);

    /// In the order of the rows. All tracks are checked at first.
    QList<CorvelGui::TrackDescription> checkedTracks() const;
    /// Identifiers of the others.
    QSet<QString> uncheckedTracks() const;
    /// What is known of the checked tracks at a time, in the order of the rows.
    QList<NamedState> statesAt(qint64 msecs) const;

    /// What can be done with the cameras, for menus.
    QList<QAction*> treeActions() const;

Q_SIGNALS:
    /// Emitted when a check box was changed.
    void checkedTracksChanged();
    /// Tells the user in a sentence what has happened.
    void told(const QString& sentence);

protected:
    void retranslate() final;

private:
    void askForRange();
    void addRange(quint32 address, int prefix);

    CorvelGui::FilterLineEdit* m_filter;
    DeviceTree* m_tree;
    QAction* m_addRange;
    QAction* m_remove;
    QAction* m_separator;
    QAction* m_expand;
    QAction* m_collapse;
};

} // namespace Review
