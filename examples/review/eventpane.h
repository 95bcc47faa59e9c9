#pragma once

#include "eventmodel.h"

#include <QWidget>

class QTreeView;

namespace Review {

/// The events in a list.
class EventPane : public QWidget
{
    Q_OBJECT

public:
    explicit EventPane(const TimeTexts& times, QWidget* parent = nullptr);

    /// Replaces all events.
    void setReview(const ReviewData& review);

    /// The events that are in the list, and what is known of them.
    const EventModel& events() const { return *m_model; }
    /// Leaves out the events of these tracks.
    void setHiddenTracks(const QSet<QString>& identifiers);
    /// Makes an event the current one and brings it into view, if it is in the list.
    void select(qsizetype index);

    void setTimes(const TimeTexts& times);
    /// Applies all translated texts again.
    void retranslate();

Q_SIGNALS:
    /// Emitted when the user opens an event: with a double click, or with Return.
    void eventOpened(qint64 msecs);

private:
    EventModel* m_model;
    QTreeView* m_view;
};

} // namespace Review
