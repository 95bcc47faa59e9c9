// SPDX-License-Identifier: MIT
#pragma once

#include "eventlist.h"

#include <QSet>
#include <QTableView>

namespace CorvelGui {
class PRowFilterModel;
} // namespace CorvelGui

namespace Review {

class DurationFilter;
class EventModel;
class TimeTexts;

/// The table of events, of which there can be millions: those whose track and texts are wanted, in
/// an order of choice. The window goes on while it searches and sorts.
class EventTable : public QTableView
{
    Q_OBJECT

public:
    explicit EventTable(QWidget* parent = nullptr);

    void setEvents(const EventList& events, const TimeTexts& times);
    /// The same events say something else now.
    void renewTexts(const EventList& events, const TimeTexts& times);
    /// Shows the events that are not left out, say @p filter in some column and last as long as
    /// @p durations say. The current event stays current, also when it comes back later.
    void showRows(const EventList& events, const QString& filter, const DurationFilter& durations);

    qsizetype eventOf(const QModelIndex& index) const;
    /// Makes an event the current one and brings it into view, as soon as it is in the table.
    void goTo(qsizetype event);

    /// The events of the rows that are shown, or of the selected ones of them if there are several,
    /// from top to bottom.
    QList<qsizetype> chosenEvents() const;

protected:
    /// Says so where there is no event.
    void paintEvent(QPaintEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void showOptional(int column, bool needed);
    void fitColumns();
    void restoreCurrent();
    void showRow(const QModelIndex& cell);

    CorvelGui::PRowFilterModel* m_rows;
    EventModel* m_events;
    QSet<int> m_needed; ///< the columns that say anything, of those that may say nothing
    qsizetype m_current = -1;
};

} // namespace Review
