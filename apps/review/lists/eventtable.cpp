#include "eventtable.h"

#include "look/eventicons.h"
#include "look/listlook.h"

#include <CorvelGui/PTableWidgetItem>

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>
#include <numeric>

using CorvelGui::PTableWidgetItem;

namespace Review {

namespace {

/// A cell without a text of its own: it asks when it is looked at.
class EventCell : public PTableWidgetItem
{
public:
    EventCell(const EventList& events, const EventTexts& texts, qsizetype event, int column)
        : PTableWidgetItem(UserType + column), m_events(events), m_texts(texts), m_event(event)
    {}

    qsizetype event() const { return m_event; }

    QVariant data(int role) const override
    {
        const auto column = EventTexts::Column(type() - UserType);
        if (role == Qt::DisplayRole)
            return m_texts.text(m_event, column);
        if (role == Qt::DecorationRole && column == EventTexts::Kind)
            return EventIcons::inList(EventKinds::parse(m_events.event(m_event).kind));
        return PTableWidgetItem::data(role);
    }

    bool operator<(const QTableWidgetItem& other) const override
    {
        return m_texts.isLess(m_event, static_cast<const EventCell&>(other).m_event,
                              EventTexts::Column(type() - UserType));
    }

private:
    const EventList& m_events;
    const EventTexts& m_texts;
    const qsizetype m_event;
};

} // namespace

EventTable::EventTable(QWidget* parent) : PTableWidget(0, EventTexts::ColumnCount, parent)
{
    ListLook::apply(this, horizontalHeader());
    horizontalHeader()->setSectionResizeMode(EventTexts::Text, QHeaderView::Stretch);
    horizontalHeader()->setMinimumSectionSize(90);
    horizontalHeader()->setSortIndicator(EventTexts::Time, Qt::AscendingOrder);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(ListLook::rowHeight(this));
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setSortingEnabled(true);
    InitCopyMenus(true);
    ListLook::offerActions(this);
}

void EventTable::setEvents(const EventList& events, const EventTexts& texts)
{
    // A sorted table would look for the place of each cell anew.
    setSortingEnabled(false);
    setRowCount(0);
    setRowCount(int(events.size()));
    {
        const QSignalBlocker blocker(model());
        for (int row = 0; row < rowCount(); ++row) {
            for (int column = 0; column < EventTexts::ColumnCount; ++column)
                setItem(row, column, new EventCell(events, texts, row, column));
        }
    }
    setSortingEnabled(true);
    showNewTexts();
}

void EventTable::showRows(const EventList& events, const QString& filter)
{
    // Without a filter no row needs to say its texts.
    if (!filter.isEmpty())
        FilterTable(filter.toLower());
    // Otherwise the header would add up all rows again after each of them.
    verticalHeader()->setUpdatesEnabled(false);
    for (int row = 0; row < rowCount(); ++row) {
        const bool isLeftOut = !events.isShown(eventOf(row));
        if (filter.isEmpty() || isLeftOut)
            setRowHidden(row, isLeftOut);
    }
    verticalHeader()->setUpdatesEnabled(true);
    if (currentRow() >= 0 && !isRowHidden(currentRow()))
        scrollToItem(currentItem());
}

void EventTable::showNewTexts()
{
    fitColumns();
    viewport()->update();
}

void EventTable::fitColumns()
{
    for (int column = 0; column < columnCount(); ++column) {
        if (column != EventTexts::Text)
            resizeColumnToContentsWithOffset(column, 0);
    }
}

qsizetype EventTable::eventOf(int row) const
{
    return static_cast<const EventCell*>(item(row, 0))->event();
}

void EventTable::goTo(qsizetype event)
{
    for (int row = 0; row < rowCount(); ++row) {
        if (eventOf(row) != event || isRowHidden(row))
            continue;
        setCurrentCell(row, std::max(0, currentColumn()));
        scrollToItem(currentItem(), PositionAtCenter);
        return;
    }
}

QList<qsizetype> EventTable::chosenEvents() const
{
    QList<int> rows = GetSelectedRows();
    const auto isHidden = [this](int row) {
        return isRowHidden(row);
    };
    rows.removeIf(isHidden);
    if (rows.size() < 2) {
        rows.resize(rowCount());
        std::iota(rows.begin(), rows.end(), 0);
        rows.removeIf(isHidden);
    }
    std::ranges::sort(rows);
    QList<qsizetype> events;
    for (const int row : std::as_const(rows))
        events.append(eventOf(row));
    return events;
}

} // namespace Review
