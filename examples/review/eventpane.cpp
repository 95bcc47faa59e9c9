#include "eventpane.h"

#include "listview.h"

#include <QHeaderView>
#include <QTreeView>
#include <QVBoxLayout>

namespace Review {

EventPane::EventPane(const TimeTexts& times, QWidget* parent)
    : QWidget(parent), m_model(new EventModel(times, this)), m_view(createList(m_model))
{
    m_view->header()->setSectionResizeMode(EventModel::Text, QHeaderView::Stretch);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_view);
    connect(m_view, &QTreeView::activated, this, [this](const QModelIndex& index) {
        Q_EMIT eventOpened(m_model->eventOfRow(index.row()).time);
    });
    retranslate();
}

void EventPane::setReview(const ReviewData& review)
{
    m_model->setReview(review);
}

void EventPane::setHiddenTracks(const QSet<QString>& identifiers)
{
    m_model->setHiddenTracks(identifiers);
}

void EventPane::select(qsizetype index)
{
    const QModelIndex row = m_model->rowOf(index);
    if (!row.isValid())
        return;
    m_view->setCurrentIndex(row);
    m_view->scrollTo(row, QAbstractItemView::PositionAtCenter);
}

void EventPane::setTimes(const TimeTexts& times)
{
    m_model->setTimes(times);
}

void EventPane::retranslate()
{
    m_view->setAccessibleName(tr("Events"));
}

} // namespace Review
