#pragma once

#include "look/timetexts.h"

#include <QDateTimeEdit>

namespace Review {

/// Edits an instant on the clock of a zone. An instant that is only shown stays exactly what it is,
/// also where the clock cannot tell it from another.
class InstantEdit : public QDateTimeEdit
{
    Q_OBJECT

public:
    explicit InstantEdit(const TimeTexts& times, QWidget* parent = nullptr);

    /// Milliseconds since the Unix epoch.
    qint64 instant() const { return m_instant; }
    void setInstant(qint64 msecs);
    /// Shows the instant on another clock.
    void setTimes(const TimeTexts& times);

private:
    void showInstant();

    TimeTexts m_times;
    qint64 m_instant = 0;
};

} // namespace Review
