#include "instantedit.h"

#include "session/clock.h"

#include <QCalendarWidget>
#include <QSignalBlocker>

namespace Review {

InstantEdit::InstantEdit(const Clock& clock, QWidget* parent)
    : QDateTimeEdit(parent), m_clock(clock)
{
    setTimeSpec(Qt::UTC);
    setDisplayFormat(clock.times().format().pattern());
    setCalendarPopup(true);
    connect(this, &QDateTimeEdit::dateTimeChanged, this,
            [this](const QDateTime& shown) { m_instant = m_clock.times().fromWallClock(shown); });
    connect(&clock, &Clock::changed, this, &InstantEdit::followClock);
}

void InstantEdit::setInstant(qint64 msecs)
{
    m_instant = msecs;
    showInstant();
}

void InstantEdit::followClock()
{
    {
        const QSignalBlocker silent(this);
        setDisplayFormat(m_clock.times().format().pattern());
    }
    showInstant();
}

void InstantEdit::showInstant()
{
    const QSignalBlocker silent(this);
    setDateTime(m_clock.times().wallClock(m_instant));
}

} // namespace Review
