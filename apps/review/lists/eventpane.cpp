// SPDX-License-Identifier: MIT
#include "eventpane.h"

#include "data/csvwriter.h"
#include "data/eventwriter.h"
#include "durationfilter.h"
#include "eventtable.h"
#include "eventtexts.h"
#include "look/listlook.h"
#include "session/clock.h"

#include <CorvelGui/FilterLineEdit>
#include <CorvelGui/PHeaderCheckMenu>

#include <QAction>
#include <QHeaderView>
#include <QVBoxLayout>

using CorvelGui::FilterLineEdit;
using namespace Qt::StringLiterals;

namespace Review {

EventPane::EventPane(const Clock& clock, QWidget* parent)
    : Translated(parent)
    , m_clock(clock)
    , m_filter(new FilterLineEdit)
    , m_durations(new DurationFilter)
    , m_table(new EventTable)
    , m_export(new QAction(m_table))
    , m_reportAction(new QAction(m_table))
{
    new CorvelGui::PHeaderCheckMenu(m_table->horizontalHeader());
    m_export->setObjectName(u"exportEvents"_s);
    m_reportAction->setObjectName(u"reportEvents"_s);
    m_table->addActions({m_export, m_reportAction});
    m_reportAction->setShortcut(QKeySequence::Print);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addLayout(ListLook::place(m_filter, m_durations));
    layout->addWidget(m_table);

    connect(m_filter, &FilterLineEdit::filterChanged, this, &EventPane::showRows);
    connect(m_durations, &DurationFilter::changed, this, &EventPane::showRows);
    connect(m_export, &QAction::triggered, this, &EventPane::exportEvents);
    connect(m_reportAction, &QAction::triggered, this, &EventPane::reportEvents);
    connect(m_table, &QAbstractItemView::activated, this,
            [this](const QModelIndex& index) { Q_EMIT eventOpened(m_table->eventOf(index)); });
    connect(&clock, &Clock::changed, this, &EventPane::renewTexts);
    retranslate();
}

void EventPane::setReview(const ReviewData& review)
{
    m_list = EventList(review);
    m_table->setEvents(m_list, m_clock.times());
    m_durations->setVisible(m_list.events().haveDurations());
    if (m_durations->isHidden())
        m_durations->reset();
    showRows();
}

void EventPane::setHiddenTracks(const QSet<QString>& identifiers)
{
    if (m_list.setHiddenTracks(identifiers))
        showRows();
}

void EventPane::showRows()
{
    m_table->showRows(m_list, m_filter->text(), *m_durations);
}

void EventPane::exportEvents()
{
    EventWriter writer(m_list.events(), m_clock.times().zone(), CsvWriter::userSeparator());
    for (const qsizetype event : m_table->chosenEvents())
        writer.add(event);
    Q_EMIT exportWanted(writer);
}

void EventPane::reportEvents()
{
    const EventTexts texts(m_list, m_clock.times());
    QList<EventTexts::Column> shown;
    QStringList columns;
    for (int column = 0; column < EventTexts::ColumnCount; ++column) {
        if (m_table->isColumnHidden(column))
            continue;
        shown.append(EventTexts::Column(column));
        columns.append(m_table->model()->headerData(column, Qt::Horizontal).toString());
    }
    QList<EventLine> events;
    for (const qsizetype event : m_table->chosenEvents()) {
        if (events.size() > mostReportedEvents)
            break;
        EventLine line{.time = m_list.events().timeAt(event),
                       .track = m_list.events().tracks()[m_list.events().trackAt(event)]};
        for (const EventTexts::Column column : shown)
            line.texts.append(texts.text(event, column));
        events.append(line);
    }
    Q_EMIT reportWanted(events, columns);
}

void EventPane::select(qsizetype index)
{
    m_table->goTo(index);
}

void EventPane::renewTexts()
{
    m_table->renewTexts(m_list, m_clock.times());
    if (!m_filter->text().isEmpty())
        showRows();
}

void EventPane::retranslate()
{
    m_filter->setAccessibleName(tr("Filter events"));
    m_table->setAccessibleName(tr("Events"));
    m_export->setText(tr("Export &events…"));
    m_reportAction->setText(tr("Report of e&vents…"));
    m_reportAction->setStatusTip(
        tr("Print the events in the table, or several selected ones, or save them as PDF"));
    m_export->setStatusTip(
        tr("Write the events in the table, or several selected ones, to a file"));
    renewTexts();
}

} // namespace Review
