#pragma once

#include "eventtexts.h"

#include <CorvelGui/PTableWidget>

namespace Review {

/// The table of events: a row for each, hidden while its track or the filter leaves it out. Rows
/// are made once and stay when texts change, and with them what is selected.
class EventTable : public CorvelGui::PTableWidget
{
    Q_OBJECT

public:
    explicit EventTable(QWidget* parent = nullptr);

    /// Makes a row for each of @p events. Both must outlive the rows.
    void setEvents(const EventList& events, const EventTexts& texts);
    /// Shows the rows of events that are not left out and say @p filter in some column.
    void showRows(const EventList& events, const QString& filter);
    /// Shows what the texts say now.
    void showNewTexts();

    qsizetype eventOf(int row) const;
    /// Makes an event the current one and brings it into view, unless its row is hidden.
    void goTo(qsizetype event);

    /// The events of the rows that are shown, or of the selected ones of them if there are several,
    /// from top to bottom.
    QList<qsizetype> chosenEvents() const;

private:
    void fitColumns();
};

} // namespace Review
