#include "instantedit.h"

#include <QCalendarWidget>
#include <QSignalBlocker>

namespace Review {

InstantEdit::InstantEdit(const TimeTexts& times, QWidget* parent)
    : QDateTimeEdit(parent), m_times(times)
{
    setTimeSpec(Qt::UTC);
    setDisplayFormat(m_times.format().pattern());
    setCalendarPopup(true);
    connect(this, &QDateTimeEdit::dateTimeChanged, this,
            [this](const QDateTime& shown) { m_instant = m_times.fromWallClock(shown); });
}

void InstantEdit::setInstant(qint64 msecs)
{
    m_instant = msecs;
    showInstant();
}

void InstantEdit::setTimes(const TimeTexts& times)
{
    m_times = times;
    {
        const QSignalBlocker silent(this);
        setDisplayFormat(m_times.format().pattern());
    }
    showInstant();
}

void InstantEdit::showInstant()
{
    const QSignalBlocker silent(this);
    setDateTime(m_times.wallClock(m_instant));
}

} // namespace Review
