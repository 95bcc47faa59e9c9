// SPDX-License-Identifier: MIT
#include "datecalendar.h"

#include <Hueloft/POrvGuiTheme>

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTextCharFormat>
#include <QToolButton>

#include <algorithm>

using Hueloft::POrvGuiTheme;
using namespace Qt::StringLiterals;

namespace CorvelGui {

DateCalendar::DateCalendar(QWidget* parent)
    : QCalendarWidget(parent)
    , m_foot(new QWidget(this))
    , m_today(new QPushButton(m_foot))
    , m_empty(new QPushButton(m_foot))
{
    setVerticalHeaderFormat(NoVerticalHeader);
    for (auto* button : findChildren<QToolButton*>()) {
        // Instead of icons that do not follow the look.
        if (button->objectName() == "qt_calendar_prevmonth"_L1)
            button->setArrowType(Qt::LeftArrow);
        else if (button->objectName() == "qt_calendar_nextmonth"_L1)
            button->setArrowType(Qt::RightArrow);
    }
    auto* row = new QHBoxLayout(m_foot);
    row->setContentsMargins(4, 4, 4, 4);
    row->addWidget(m_today);
    row->addWidget(m_empty);
    layout()->addWidget(m_foot);
    setEmptyAllowed(false);
    connect(m_today, &QPushButton::clicked, this, [this] {
        setSelectedDate(m_todayDate);
        Q_EMIT activated(selectedDate());
    });
    connect(m_empty, &QPushButton::clicked, this, &DateCalendar::emptyChosen);
    retranslate();
}

void DateCalendar::setEmptyAllowed(bool allowed)
{
    m_empty->setVisible(allowed);
}

void DateCalendar::setToday(QDate today)
{
    m_todayDate = today;
    m_today->setEnabled(today >= minimumDate() && today <= maximumDate());
}

// QCalendarWidget knows nothing of the foot.
QSize DateCalendar::minimumSizeHint() const
{
    const QSize foot = m_foot->sizeHint();
    const QSize days = QCalendarWidget::minimumSizeHint();
    return {std::max(days.width(), foot.width()), days.height() + foot.height()};
}

void DateCalendar::showEvent(QShowEvent* event)
{
    // Readable in the look of this moment.
    QTextCharFormat weekend;
    weekend.setForeground(POrvGuiTheme::statusRed());
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        setWeekdayTextFormat(day, locale().weekdays().contains(day) ? QTextCharFormat() : weekend);
    QCalendarWidget::showEvent(event);
    Q_EMIT shown();
}

void DateCalendar::hideEvent(QHideEvent* event)
{
    QCalendarWidget::hideEvent(event);
    Q_EMIT hidden();
}

void DateCalendar::changeEvent(QEvent* event)
{
    QCalendarWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void DateCalendar::retranslate()
{
    m_today->setText(tr("Today"));
    m_empty->setText(tr("No date"));
}

} // namespace CorvelGui
