// SPDX-License-Identifier: MIT
#pragma once

#include "data/eventline.h"
#include "eventlist.h"
#include "look/translated.h"

#include <QWidget>

class QAction;

namespace CorvelGui {
class FilterLineEdit;
} // namespace CorvelGui

namespace Review {

class Clock;
class DurationFilter;
class EventTable;
class EventWriter;

/// The events in a table that sorts, copies and exports, below a field that filters it. Where
/// events last, they are filtered by that, too.
class EventPane : public Translated<QWidget>
{
    Q_OBJECT

public:
    /// @p clock must live longer.
    explicit EventPane(const Clock& clock, QWidget* parent = nullptr);

    /// Replaces all events. Where there are only new ones behind them, the others stay.
    void setReview(const ReviewData& review);

    /// All events. The filter field does not matter here.
    const EventList& events() const { return m_list; }
    /// Leaves out the events of these tracks.
    void setHiddenTracks(const QSet<QString>& identifiers);
    /// Makes an event the current one and brings it into view, if it is in the table.
    void select(qsizetype index);
    /// Asks for an export of the events that are in the table, or of several selected ones.
    QAction* exportAction() const { return m_export; }
    /// Asks for a report of the same events.
    QAction* reportAction() const { return m_reportAction; }

Q_SIGNALS:
    /// Emitted when the user opens an event: with a double click, or with Return.
    void eventOpened(qsizetype index);
    void exportWanted(const Review::EventWriter& events);
    /// @p columns are what the texts of the events stand for: those that the table shows. Of more
    /// than mostReportedEvents there is one more than that.
    void reportWanted(const QList<Review::EventLine>& events, const QStringList& columns);

protected:
    void retranslate() final;

private:
    void renewTexts();
    void showRows();
    void exportEvents();
    void reportEvents();

    const Clock& m_clock;
    EventList m_list;
    CorvelGui::FilterLineEdit* m_filter;
    DurationFilter* m_durations;
    EventTable* m_table;
    QAction* m_export;
    QAction* m_reportAction;
};

} // namespace Review
