// SPDX-License-Identifier: MIT
#include "eventtable.h"

#include "durationfilter.h"
#include "eventmodel.h"
#include "look/listlook.h"

#include <CorvelGui/PListActions>
#include <CorvelGui/PRowFilterModel>

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <utility>

using CorvelGui::PListActions;
using CorvelGui::PRowFilterModel;

namespace Review {

EventTable::EventTable(QWidget* parent)
    : QTableView(parent), m_rows(new PRowFilterModel(this)), m_events(new EventModel(m_rows))
{
    m_rows->setSourceModel(m_events);
    m_rows->setComparison([this](int row, int other, int column) {
        return m_events->texts().compare(row, other, EventTexts::Column(column));
    });
    setModel(m_rows);
    connect(m_rows, &PRowFilterModel::busyChanged, viewport(), qOverload<>(&QWidget::update));
    connect(m_rows, &QAbstractItemModel::modelReset, this, &EventTable::restoreCurrent);
    connect(m_rows, &QAbstractItemModel::rowsInserted, this, &EventTable::restoreCurrent);

    setSelectionBehavior(SelectRows);
    ListLook::apply(this, horizontalHeader());
    // One of its own: otherwise each look at the header asks all selected rows.
    horizontalHeader()->setSelectionModel(new QItemSelectionModel(m_rows, horizontalHeader()));
    horizontalHeader()->setSectionResizeMode(EventTexts::Text, QHeaderView::Stretch);
    horizontalHeader()->setMinimumSectionSize(90);
    horizontalHeader()->setSortIndicator(EventTexts::Time, Qt::AscendingOrder);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(ListLook::rowHeight(this));
    for (const int column : {EventTexts::Duration, EventTexts::Severity})
        setColumnHidden(column, true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setSortingEnabled(true);
    (new PListActions(this))->offer();
    ListLook::offerActions(this);
}

void EventTable::setEvents(const EventList& events, const TimeTexts& times)
{
    m_rows->setFilter({}); // it knows the events before
    const bool goesOn = m_events->addEvents(events, times);
    if (!goesOn) {
        m_current = -1;
        m_events->setEvents(events, times);
    }
    showOptional(EventTexts::Duration, events.events().haveDurations());
    showOptional(EventTexts::Severity, events.events().haveSeverities());
    if (!goesOn)
        fitColumns();
}

// It goes and comes with what it says, and stays as the user wants it until then.
void EventTable::showOptional(int column, bool needed)
{
    if (m_needed.contains(column) == needed)
        return;
    if (needed)
        m_needed.insert(column);
    else
        m_needed.remove(column);
    setColumnHidden(column, !needed);
}

void EventTable::renewTexts(const EventList& events, const TimeTexts& times)
{
    m_events->renewTexts(events, times);
    fitColumns();
}

void EventTable::showRows(const EventList& events, const QString& filter,
                          const DurationFilter& durations)
{
    if (filter.isEmpty() && events.showsAll() && !durations.isFiltering())
        return m_rows->setFilter({});
    m_rows->setFilter([events, says = m_events->texts().finder(filter),
                       shortest = durations.shortest(), longest = durations.longest()](int row) {
        const qint64 duration = events.events().durationAt(row);
        return duration >= shortest && duration <= longest && events.isShown(row) && says(row);
    });
}

void EventTable::fitColumns()
{
    for (int column = 0; column < EventTexts::ColumnCount; ++column) {
        if (column != EventTexts::Text && !isColumnHidden(column))
            resizeColumnToContents(column);
    }
}

qsizetype EventTable::eventOf(const QModelIndex& index) const
{
    return m_rows->mapToSource(index).row();
}

void EventTable::goTo(qsizetype event)
{
    if (currentIndex().isValid() && eventOf(currentIndex()) == event)
        return showRow(currentIndex());
    setCurrentIndex({});
    m_current = event;
    restoreCurrent();
}

void EventTable::restoreCurrent()
{
    if (m_current < 0 || currentIndex().isValid())
        return;
    const QModelIndex cell = m_rows->mapFromSource(m_events->index(int(m_current), 0));
    if (!cell.isValid())
        return;
    showRow(cell);
}

void EventTable::showRow(const QModelIndex& cell)
{
    // Whoever looks at some columns goes on with these.
    const int left = horizontalScrollBar()->value();
    setCurrentIndex(cell);
    scrollTo(cell, PositionAtCenter);
    horizontalScrollBar()->setValue(left);
}

void EventTable::paintEvent(QPaintEvent* event)
{
    QTableView::paintEvent(event);
    if (m_rows->rowCount() > 0 || m_rows->isBusy())
        return;
    const bool isFiltered = m_events->rowCount() > 0;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     isFiltered ? tr("No matching events") : tr("No events"));
}

void EventTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (current.isValid())
        m_current = eventOf(current);
}

QList<qsizetype> EventTable::chosenEvents() const
{
    m_rows->finish();
    QModelIndexList rows = CorvelGui::PListActions::selectedRows(*this);
    if (rows.size() < 2) {
        rows.clear();
        for (int row = 0; row < m_rows->rowCount(); ++row)
            rows.append(m_rows->index(row, 0));
    }
    QList<qsizetype> events;
    for (const QModelIndex& row : std::as_const(rows))
        events.append(eventOf(row));
    return events;
}

} // namespace Review
